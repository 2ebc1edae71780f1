#pragma once

#include <algorithm>
#include <set>
#include <string>

#include "tests/support/Projects.h"
#include "tests/support/ReportTest.h"
#include "tests/ui/FakeFormView.h"
#include "ui/Form1.h"

namespace marlo::test {

/// A main window of which only the logic is there.
class Form1Test : public ReportTest {
  protected:
    void WriteResultFiles() const {
        WriteRecords("results.csv", {});
        WriteRecords("fln.csv", {});
        WriteUsed({{"Reverb", "VST", "On"}, {"Echo", "DirectX", "Off"}});
        WriteInstalled({{"VST", "Reverb", "/vst/Reverb.dll"}});
    }

    /// The indexes of the items that can be used now.
    std::set<std::size_t> Enabled() const { return ItemsWith(&FormState::Item::isEnabled); }
    std::set<std::size_t> Hovered() const { return ItemsWith(&FormState::Item::isHovered); }

    std::set<std::size_t> ItemsWith(bool FormState::Item::*mark) const {
        std::set<std::size_t> found;
        for (std::size_t i = 0; i < kCommandItemCount; ++i)
            if (view.state.cmdbuttons.at(i).*mark)
                found.insert(i);
        return found;
    }

    Texts MessageTexts() const {
        Texts texts;
        for (const Message& message : view.messages)
            texts.push_back(message.text);
        return texts;
    }

    std::size_t Count(const std::string& event) const {
        return static_cast<std::size_t>(std::count(view.events.begin(), view.events.end(), event));
    }

    void AddProject(const std::string& name) const {
        test::AddProject(folder, name, {{.name = "Reverb"}});
    }

    FakeFormView view;
    Form1 form{application, view, "https://marlo.example"};

    const std::set<std::size_t> allButCancel = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    const std::set<std::size_t> withoutResults = {0, 1, 8, 9, 10, 11};
};

}  // namespace marlo::test
