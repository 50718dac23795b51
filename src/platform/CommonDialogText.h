// Text conversions between CommonDialog's properties and the common
// dialogs' records. Kept free of window calls so they are tested alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// "Icons|*.ico|All|*.*" becomes the dialogs' list form: every "|" a NUL,
// and one more NUL at the end. With the terminator c_str() adds, the dialog
// sees the list ended by two NULs.
std::string ConvertFilter(std::string_view text);

// The characters before the first NUL; the whole text when it holds none.
std::string CutAtNul(std::string_view text);

// A fixed-size face-name array as text: each byte one ANSI character, up to
// the first zero byte or the end of the array.
std::string FaceNameToText(const char* bytes, std::size_t length);

// `text` padded with blanks or cut to `size` - 1 characters, then one NUL:
// a buffer of exactly `size` characters for a dialog to write into.
std::string FileNameBuffer(std::string_view text, std::size_t size);

// A point size in tenths as whole points, halves going to the even number
// (105 gives 10, 115 gives 12).
std::int32_t TenthsToPoints(std::int32_t tenths);

}  // namespace platform
