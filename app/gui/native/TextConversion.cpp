#include "app/gui/TextConversion.h"

#include "platform/WideText.h"

namespace marlo::gui {

wxString ToolkitPath(const std::string& path) {
    return platform::WideText(path);
}

std::string PathOf(const wxString& path) {
    return platform::NarrowText(path.ToStdWstring());
}

}  // namespace marlo::gui
