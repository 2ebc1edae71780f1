#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/AnsiCodePage.h"
#include "platform/Utf8.h"

namespace marlo {

// A field of a result file, a path or a setting is a byte string and stays one. These routines
// decode it where a person reads it, and where characters rather than bytes count.

/// A field as characters: valid UTF-8 as UTF-8, anything else in the system's ANSI code page.
std::u32string Decode(std::string_view field);

using platform::EncodeUtf8;

/// A field as UTF-8 for display (see `Decode`).
inline std::string DecodeToUtf8(std::string_view field) {
    return platform::Utf8FromName(field);
}

/// The upper-case form of a letter of today's Latin, Greek, Cyrillic and Armenian alphabets where
/// that is one character, else the character itself (so ß stays). Does not depend on the locale.
char32_t UpperCase(char32_t character);

/// `text` in upper case, character by character.
std::u32string UpperCase(std::u32string text);

/// A field in upper case, as UTF-8.
std::string UpperCaseUtf8(std::string_view field);

/// Whether two fields are the same text but for the case of their characters.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

/// Sorts entries by the characters of their names without regard to case.
/// @param nameOf a function, or a member, that gives an entry's name.
template <class Entry, class NameOf = std::identity>
void SortIgnoringCase(std::vector<Entry>& entries, NameOf nameOf = {}) {
    struct Keyed {
        std::u32string key;
        Entry entry;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(entries.size());
    for (Entry& entry : entries) {
        std::u32string key = UpperCase(Decode(std::invoke(nameOf, entry)));
        keyed.push_back({std::move(key), std::move(entry)});
    }
    std::ranges::sort(keyed, {}, [&](const Keyed& item) {
        return std::tie(item.key, std::invoke(nameOf, item.entry));
    });
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i] = std::move(keyed[i].entry);
}

/// `text` without the spaces at both ends. Other white space stays.
std::string_view TrimSpaces(std::string_view text);

/// The number that `text` starts with, after spaces; 0 when it starts with none.
double LeadingNumber(std::string_view text);

}  // namespace marlo
