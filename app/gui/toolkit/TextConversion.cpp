#include "app/gui/TextConversion.h"

namespace marlo::gui {

wxString ToolkitPath(const std::string& path) {
    return {path.c_str(), *wxConvFileName};
}

std::string PathOf(const wxString& path) {
    const auto bytes = path.mb_str(*wxConvFileName);
    return {bytes.data(), bytes.length()};
}

}  // namespace marlo::gui
