#include "core/MainWindow.h"

namespace marlo {

void ShowUnexpectedError(MainWindow& window) {
    window.ShowMessage({.text = "An unexpected error occurred.", .icon = MessageIcon::Exclamation});
}

}  // namespace marlo
