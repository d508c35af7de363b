#include "qt/support/ProgramTexts.h"

#include "support/TestFolders.h"

#include <QRegularExpression>
#include <QString>

#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>

namespace gfc::test {

namespace {

namespace fs = std::filesystem;

// A text between quotation marks, and those that follow it directly.
constexpr const char* oneText = R"((?:"(?:[^"\\\n]|\\.)*"\s*)+)";

QString Source(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    static const QRegularExpression remarks(QStringLiteral("//[^\n]*|#include[^\n]*"));
    return QString::fromStdString(bytes).remove(remarks);
}

using Layers = std::initializer_list<const char*>;
constexpr Layers speaking = {"forms", "project", "services", "binding", "app"};

QStringList Sources(Layers layers) {
    QStringList sources;
    for (const char* layer : layers)
        for (const auto& entry : fs::recursive_directory_iterator(SourceFolder() / layer))
            if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
                sources << Source(entry.path());
    return sources;
}

QString Joined(QString literal) {
    static const QRegularExpression between(QStringLiteral("\"\\s*\""));
    literal = literal.trimmed().remove(between);
    literal = literal.mid(1, literal.size() - 2);
    literal.replace(QLatin1String("\\r"), QLatin1String(" "))
        .replace(QLatin1String("\\n"), QLatin1String(" "));
    return literal.replace(QLatin1String("\\\""), QLatin1String("\"")).simplified();
}

QStringList Matches(const QString& pattern, int group, Layers layers = speaking) {
    const QRegularExpression wanted(pattern);
    QStringList found;
    for (const QString& source : Sources(layers))
        for (auto at = wanted.globalMatch(source); at.hasNext();)
            found << at.next().captured(group);
    return found;
}

QStringList JoinedAll(QStringList literals) {
    for (QString& literal : literals)
        literal = Joined(literal);
    return literals;
}

} // namespace

QStringList TextsOfSources() {
    return JoinedAll(Matches(QLatin1String(oneText), 0));
}

QStringList MessagesOfSources() {
    const QString text = QLatin1Char('(') + QLatin1String(oneText) + QLatin1Char(')');
    return JoinedAll(Matches(QStringLiteral("\\.Text =\\s*") + text, 1)) +
           JoinedAll(Matches(QStringLiteral("\\bTell\\(\\s*\"[^\"]*\",\\s*") + text, 1)) +
           JoinedAll(Matches(QStringLiteral("\\bRefuseToStart\\([^,]*,\\s*") + text, 1));
}

std::set<int> HelpNumbersOfSources() {
    std::set<int> numbers;
    for (const QString& number :
         Matches(QStringLiteral("(?<![\\w'.])[1-9]\\d00(?![\\w'.])"), 0, {"forms", "binding"}))
        numbers.insert(number.toInt());
    return numbers;
}

} // namespace gfc::test
