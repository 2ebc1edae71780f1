#pragma once

#include <string>
#include <wx/string.h>

#include "core/Text.h"

namespace marlo::gui {

/// A field as the toolkit shows it.
inline wxString Shown(const std::string& field) {
    return wxString::FromUTF8(DecodeToUtf8(field));
}

/// What the user typed, as a field.
inline std::string FieldOf(const wxString& text) {
    return text.utf8_string();
}

/// A path as the toolkit takes it, and back; any path that the file system has comes through.
wxString ToolkitPath(const std::string& path);
std::string PathOf(const wxString& path);

}  // namespace marlo::gui
