#pragma once

#include <string>

#include "core/Application.h"
#include "tests/support/Fakes.h"
#include "tests/support/MemoryRegistry.h"
#include "tests/support/TempFolder.h"

namespace marlo::soak {

/// An application in a temporary folder, with songs that take a while to scan, folders of plug-ins
/// that take a while to walk, and result files. Programs start in the folder, with their home in
/// it, and none is started for real.
class Playground {
  public:
    Playground();

    /// Puts back what the user may have changed so that there would be nothing to do any more.
    void Freshen() const;

    bool Contains(const std::string& path) const;

    const Application& App() const { return application_; }
    test::FakeDesktop& Desktop() { return desktop_; }
    /// The text of the error log.
    std::string Log() const;

  private:
    void WriteResultFiles() const;

    test::TempFolder folder_;
    test::FakeClock clock_;
    test::FakeDesktop desktop_;
    test::MemoryRegistry registry_;
    Application application_{folder_.Path("app"), clock_, desktop_, registry_, {}};
};

}  // namespace marlo::soak
