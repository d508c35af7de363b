#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace gfc::qt {

[[nodiscard]] inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::string FromQt(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

// A text whose lines end in carriage returns, line breaks or both, with line breaks alone.
[[nodiscard]] inline QString LinesOf(std::string_view text) {
    QString lines = ToQt(text);
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return lines;
}

// A caption without the marks of its mnemonics.
[[nodiscard]] inline QString WithoutMnemonics(QString caption) {
    caption.replace(QLatin1String("&&"), QLatin1String("\x01"));
    caption.remove(QLatin1Char('&'));
    return caption.replace(QLatin1Char('\x01'), QLatin1Char('&'));
}

} // namespace gfc::qt
