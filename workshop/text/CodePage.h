// Text between UTF-8, in which the workshop keeps it, and Windows-1252, in which the library hands it out.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace gfc::workshop {

/// True when `utf8` is well-formed and every character of it has a place in the code page.
[[nodiscard]] bool FitsCodePage(std::string_view utf8);

/// Where the first byte stands that is no part of well-formed UTF-8; npos when there is none.
[[nodiscard]] std::size_t FirstByteNotUtf8(std::string_view bytes);

/// Number of characters of well-formed UTF-8; each takes one byte in the code page and one column on a
/// screen.
[[nodiscard]] std::size_t CharacterCount(std::string_view utf8);

/// `utf8` in the code page; "?" stands for each character that it does not hold.
[[nodiscard]] std::string ToCodePage(std::string_view utf8);

/// Fills the whole field: the text in the code page, cut at the field's width, then NUL to its end.
void FillField(std::span<char> field, std::string_view utf8);

/// UTF-8 of a text in the code page; never fails.
[[nodiscard]] std::string FromCodePage(std::string_view bytes);

/// UTF-8 of a fixed-width field, cut at its first NUL if it has one.
[[nodiscard]] std::string FromField(std::span<const char> field);

} // namespace gfc::workshop
