#pragma once

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "core/RunTimeError.h"
#include "tests/support/FakeControls.h"
#include "ui/FormView.h"

namespace marlo::test {

/// A main window without a screen. `events` has a line for each thing asked of it that a person
/// would see happen; what it shows is in the members.
class FakeFormView final : public FormView, private LedgerView {
  public:
    void Show(const FormState& newState) override {
        FailIf("Show");
        state = newState;
    }
    void ShowText1(const std::string& text) override {
        FailIf("ShowText1");
        text1 = text;
    }
    void ShowText2(const std::string& text) override { text2 = text; }
    void ShowList() override { events.emplace_back("ShowList"); }
    NaturalSizes Sizes() const override { return sizes; }
    TwipSize ClientArea() const override { return client; }
    bool IsMinimised() const override { return isMinimised; }
    void Place(const FormLayout& newLayout) override {
        layout = newLayout;
        events.emplace_back("Place");
        FailIf("Place");
    }
    void FillSearchTypes(const std::vector<std::string>& types) override {
        FailIf("FillSearchTypes");
        searchTypes = types;
    }
    int SearchType() const override { return searchType; }
    void SetSearchType(int index) override { searchType = index; }
    bool IgnoreCase() const override { return ignoreCase; }
    void SetIgnoreCase(bool isChecked) override { ignoreCase = isChecked; }
    std::string SearchText() const override { return searchText; }
    void StartTimer(int interval) override { timerInterval = interval; }
    void StopTimer() override { timerInterval = 0; }
    void Later(const std::function<void()>& action) override { action(); }
    void SetProgramIcon(const std::string& path) override { programIcon = path; }
    PictureBox& CsvIcon(std::size_t index) override { return csvIcons.at(index); }
    void Repaint() override { events.emplace_back("Repaint"); }
    void LetEventsRun() override {
        if (onEvents)
            onEvents();
    }
    void SetHourglass(bool isShown) override {
        events.emplace_back(isShown ? "Hourglass" : "Usual pointer");
    }
    void AutoSizeListViewColumns() override {
        events.emplace_back("AutoSizeListViewColumns");
        FailIf("AutoSizeListViewColumns");
    }
    LedgerView& Ledger() override { return *this; }
    MessageAnswer ShowMessage(const Message& message) override {
        messages.push_back(message);
        FailIf("ShowMessage");
        return answer;
    }
    FolderChooser& Folders() override { return folders; }
    void ShowOptions() override {
        events.emplace_back("ShowOptions");
        FailIf("ShowOptions");
    }
    void ShowAbout() override { events.emplace_back("ShowAbout"); }
    void Close() override { events.emplace_back("Close"); }

    FormState state;
    std::string text1;
    std::string text2;
    FormLayout layout;
    NaturalSizes sizes;
    TwipSize client = kDefaultClientSize;
    bool isMinimised = false;
    std::vector<std::string> searchTypes;
    int searchType = -1;
    bool ignoreCase = false;
    std::string searchText;
    int timerInterval = 0;  ///< 0 while the timer is off
    std::string programIcon;
    std::array<FakePictureBox, 2> csvIcons;
    FakeFolderChooser folders;
    MessageAnswer answer = MessageAnswer::Ok;
    std::function<void()> onEvents;
    /// The routine that fails, by its name; empty for none.
    std::string failing;

    std::vector<std::string> events;
    std::vector<Message> messages;

  private:
    void SetLedger(std::int32_t /*bar1Colour*/, std::int32_t /*bar2Colour*/,
                   std::int32_t /*sizingKind*/) override {
        events.emplace_back("SetLedger");
        FailIf("SetLedger");
    }
    void RemoveLedger() override { events.emplace_back("RemoveLedger"); }

    void FailIf(const std::string& routine) const {
        if (failing == routine)
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
};

}  // namespace marlo::test
