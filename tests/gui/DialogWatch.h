#pragma once

#include <functional>
#include <memory>

#include "tests/gui/Dialog.h"

namespace marlo::test {

/// Tells of each dialog that opens, for as long as this lives.
class DialogWatch {
  public:
    using OnOpen = std::function<void(std::shared_ptr<Dialog>)>;

    /// @param onOpen called when a dialog is about to be shown, or has been.
    explicit DialogWatch(OnOpen onOpen);
    DialogWatch(const DialogWatch&) = delete;
    DialogWatch& operator=(const DialogWatch&) = delete;
    DialogWatch(DialogWatch&&) = delete;
    DialogWatch& operator=(DialogWatch&&) = delete;
    ~DialogWatch();

  private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

}  // namespace marlo::test
