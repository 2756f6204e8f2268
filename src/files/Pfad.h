#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

// Paths as text and back: UTF-8 where the platform's file names are characters, else byte by byte, so that a
// name that is no UTF-8 stays the same file.

namespace rippenscheibe {

inline std::string pfadtext(const std::filesystem::path& pfad) {
    const std::u8string text = pfad.u8string();
    return {text.begin(), text.end()};
}

inline std::filesystem::path pfadAus(std::string_view text) {
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

// Whether two names lead to one file that is there.
inline bool sindDieselbeDatei(const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code fehler;
    return std::filesystem::equivalent(a, b, fehler) && !fehler;
}

}  // namespace rippenscheibe
