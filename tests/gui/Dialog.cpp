#include "tests/gui/Dialog.h"

#include <stdexcept>

#include "tests/gui/Display.h"

namespace marlo::test {

wxDialog& Dialog::Window() const {
    throw std::logic_error("not a window of the toolkit's");
}

std::string Dialog::Message() const {
    throw std::logic_error("not a message box");
}

long Dialog::MessageStyle() const {
    throw std::logic_error("not a message box");
}

void Dialog::EnterPath(const std::string& /*path*/) {
    throw std::logic_error("not a picker");
}

void Dialog::ChooseKind(int /*index*/) {
    throw std::logic_error("not a picker");
}

std::string ToolkitDialog::Title() const {
    return TitleOf(window_);
}

bool ToolkitDialog::HasKeyboard() const {
    return test::HasKeyboard(window_);
}

}  // namespace marlo::test
