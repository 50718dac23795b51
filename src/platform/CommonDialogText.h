// Text conversions between CommonDialog's properties and the common
// dialogs' records, which hold wide text. Kept free of window calls so they
// are tested alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// "Icons|*.ico|All|*.*" becomes the dialogs' list form: every "|" a NUL,
// and one more NUL at the end. With the terminator c_str() adds, the dialog
// sees the list ended by two NULs.
std::wstring ConvertFilter(std::wstring_view text);

// The characters before the first NUL; the whole text when it holds none.
std::wstring CutAtNul(std::wstring_view text);

// A fixed-size face-name array as text, up to the first NUL or the end of the
// array.
std::string FaceNameToText(const wchar_t* face, std::size_t length);

// `text` padded with blanks or cut to `size` - 1 characters, then one NUL:
// a buffer of exactly `size` characters for a dialog to write into.
std::wstring FileNameBuffer(std::wstring_view text, std::size_t size);

// A point size in tenths as whole points, halves going to the even number
// (105 gives 10, 115 gives 12).
std::int32_t TenthsToPoints(std::int32_t tenths);

}  // namespace platform
