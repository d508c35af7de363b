// "diff" and "show": one state of a configuration, and two side by side.
#include "audit/Comparison.h"
#include "commands/Json.h"
#include "commands/RecordAccess.h"
#include "record/Sha256.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace gfc::commands {

namespace {

struct Options {
    std::string Left, Right, Project;
    bool All = false;
    bool Json = false;
    bool Raw = false;
};

constexpr const char* operandHelp =
    "STATION, STATION@ENTRY of the history, or a file; #RUN behind it for one run";

void PutSection(const audit::ComparedRow& row, std::string& last) {
    if (row.Section != last)
        std::cout << '[' << row.Section << "]\n";
    last = row.Section;
}

void PutDifferences(const std::vector<audit::ComparedRow>& rows, bool all) {
    std::string section;
    for (const audit::ComparedRow& row : rows) {
        if (row.IsEqual() && !all)
            continue;
        PutSection(row, section);
        std::cout << (row.IsEqual() ? "  " : "* ") << row.Caption << " (" << row.Key
                  << "): " << audit::ShownValue(row.Left, row.LeftUnit);
        if (!row.IsEqual())
            std::cout << " -> " << audit::ShownValue(row.Right, row.RightUnit);
        std::cout << '\n';
    }
}

Json JsonOf(const audit::ComparedRow& row) {
    return {{"section", row.Section},     {"key", row.Key},           {"caption", row.Caption},
            {"left", OrNull(row.Left)},   {"leftUnit", row.LeftUnit}, {"right", OrNull(row.Right)},
            {"rightUnit", row.RightUnit}, {"equal", row.IsEqual()}};
}

Json JsonOf(const Operand& operand) {
    return {{"name", operand.Text}, {"sha256", record::Sha256(operand.Bytes)}};
}

void Diff(const Options& options, Context context) {
    const Operand left = ReadOperand(options.Left, options.Project, context.Machine);
    const Operand right = ReadOperand(options.Right, options.Project, context.Machine);
    if ((left.Run == 0) != (right.Run == 0))
        throw Failure(exitcode::WrongUse, "a run compares with a run, and a whole file with a whole file.");
    const auto rows = audit::Compare({left.Bytes, left.Run}, {right.Bytes, right.Run});
    for (const audit::ComparedRow& row : rows)
        if (!row.IsEqual())
            context.Status = exitcode::Found;
    if (!options.Json)
        return PutDifferences(rows, options.All);
    Json list = Json::array();
    for (const audit::ComparedRow& row : rows)
        if (options.All || !row.IsEqual())
            list.push_back(JsonOf(row));
    WriteJson(std::cout, {{"version", 1},
                          {"left", JsonOf(left)},
                          {"right", JsonOf(right)},
                          {"equal", context.Status == exitcode::Clean},
                          {"rows", std::move(list)}});
}

void Show(const Options& options, Context context) {
    const Operand shown = ReadOperand(options.Left, options.Project, context.Machine);
    if (options.Raw) {
        std::cout << shown.Bytes;
        return;
    }
    const auto rows = audit::Compare({shown.Bytes, shown.Run}, {shown.Bytes, shown.Run});
    if (!options.Json)
        return PutDifferences(rows, true);
    Json list = Json::array();
    for (const audit::ComparedRow& row : rows)
        list.push_back({{"section", row.Section},
                        {"key", row.Key},
                        {"caption", row.Caption},
                        {"value", OrNull(row.Left)},
                        {"unit", row.LeftUnit}});
    WriteJson(std::cout, {{"version", 1}, {"shown", JsonOf(shown)}, {"rows", std::move(list)}});
}

void AddCommonOptions(CLI::App& command, Options& options) {
    command.add_flag("--json", options.Json, "Give out JSON");
    command.add_option("--project", options.Project, "The project's file; without it the open project");
}

} // namespace

void AddDiffCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("diff", "Compare two configurations, key by key");
    command->add_option("A", options->Left, operandHelp)->required();
    command->add_option("B", options->Right, operandHelp)->required();
    command->add_flag("--all", options->All, "List what is equal, too");
    AddCommonOptions(*command, *options);
    command->footer("Exit codes: 0 equal, 1 different.\nExamples:\n  gfc-audit diff North North@12\n"
                    "  gfc-audit diff North#1 South#3");
    command->callback([options, context] { Diff(*options, context); });
}

void AddShowCommand(CLI::App& app, Context context) {
    auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("show", "Show a configuration as it stands or stood");
    command->add_option("A", options->Left, operandHelp)->required();
    command->add_flag("--raw", options->Raw, "Give out the bytes of the file");
    AddCommonOptions(*command, *options);
    command->callback([options, context] { Show(*options, context); });
}

} // namespace gfc::commands
