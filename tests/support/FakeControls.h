#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/FolderBrowser.h"
#include "dialogs/GetIcons.h"

namespace marlo::test {

/// A folder picker that answers at once.
class FakeFolderChooser final : public FolderChooser {
  public:
    std::optional<std::string> ChooseFolder(const FolderRequest& request) override {
        requests.push_back(request);
        if (failure)
            std::rethrow_exception(failure);
        if (onShow)
            onShow(request);
        return answer;
    }

    std::vector<FolderRequest> requests;
    /// What the user chooses; nothing for a cancel.
    std::optional<std::string> answer;
    /// Called while the picker is shown, so that a test can do what happens in it.
    std::function<void(const FolderRequest&)> onShow;
    /// Thrown, if set.
    std::exception_ptr failure;
};

/// A box that writes down what it is asked: "Clear", "Draw <icon>".
class FakePictureBox final : public PictureBox {
  public:
    void Clear() override {
        if (onClear)
            onClear();
        events.emplace_back("Clear");
    }
    void Draw(const platform::ShellIcon& icon) override { events.push_back("Draw " + icon.name); }

    std::vector<std::string> events;
    /// Called before it is cleared, so that a test can look around.
    std::function<void()> onClear;
};

}  // namespace marlo::test
