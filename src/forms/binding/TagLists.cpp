#include "forms/binding/TagLists.h"

#include "binding/Catalogue.h"

#include <charconv>

namespace gfc::forms {

namespace {

std::int32_t RegisterOf(const std::string& text) {
    std::int32_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

// A blank where a sign would stand, and two behind the number.
std::string NumberText(int number) {
    return " " + std::to_string(number) + "  ";
}

ui::ListView::Row RowOf(const project::Tag& tag, int number) {
    std::string text = NumberText(number);
    if (!binding::ClassOf(tag.RegType))
        return {std::move(text)};
    return {std::move(text), tag.TagName, tag.RegType, std::to_string(tag.RegAddr)};
}

} // namespace

void HeadTagList(ui::ListView& list, std::string_view heading) {
    list.ClearRows();
    list.ClearColumns();
    list.AddColumns({{std::string(heading), 12}, {"Tag Name"}, {"Tag Type", 9}, {"Register Num.", 14}});
}

void FillTagList(ui::ListView& list, const project::TagList& tags, int rowOffset) {
    std::vector<ui::ListView::Row> rows;
    rows.reserve(tags.size());
    for (const project::Tag& tag : tags)
        rows.push_back(RowOf(tag, static_cast<int>(rows.size()) + 1 + rowOffset));
    list.AddRows(std::move(rows));
}

void NumberAsFilled(ui::ListView& list) {
    list.NumberRows(NumberText);
}

project::TagList TagsInList(const ui::ListView& list) {
    project::TagList tags;
    tags.reserve(static_cast<std::size_t>(list.Count()));
    project::TagTexts texts;
    for (int row = 1; row <= list.Count(); ++row) {
        project::Tag tag;
        tag.TagName = texts.Keep(list.Cell(row, tag_column::Name));
        tag.RegAddr = RegisterOf(list.Cell(row, tag_column::Register));
        tag.RegType = texts.Keep(list.Cell(row, tag_column::Type));
        tags.push_back(std::move(tag));
    }
    return tags;
}

config::TagBinding BindingInRow(const ui::ListView& list, int row) {
    return {.Tag = list.Cell(row, tag_column::Name),
            .Type = list.Cell(row, tag_column::Type),
            .RegAddr = list.Cell(row, tag_column::Register)};
}

int RowWith(const ui::ListView& list, const config::TagBinding& tag) {
    for (int row = 1; row <= list.Count(); ++row)
        if (list.Cell(row, tag_column::Register) == tag.RegAddr &&
            list.Cell(row, tag_column::Type) == tag.Type)
            return row;
    return 0;
}

} // namespace gfc::forms
