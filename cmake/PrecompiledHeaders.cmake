# Headers of other people that most files of a kind include. Each kind's are compiled once, for one of
# its targets, and the others reuse that. A file still includes what it uses: the linter's build and
# that of the fuzzers have no precompiled headers.
set(MARLO_STANDARD_HEADERS
  <algorithm>
  <array>
  <charconv>
  <cstddef>
  <cstdint>
  <filesystem>
  <functional>
  <iostream>
  <limits>
  <map>
  <memory>
  <optional>
  <string>
  <string_view>
  <system_error>
  <utility>
  <variant>
  <vector>)

set(MARLO_WINDOW_HEADERS
  <wx/app.h>
  <wx/bitmap.h>
  <wx/checkbox.h>
  <wx/choice.h>
  <wx/clipbrd.h>
  <wx/dcbuffer.h>
  <wx/dialog.h>
  <wx/filedlg.h>
  <wx/frame.h>
  <wx/image.h>
  <wx/listctrl.h>
  <wx/menu.h>
  <wx/msgdlg.h>
  <wx/settings.h>
  <wx/sizer.h>
  <wx/stattext.h>
  <wx/textctrl.h>)

set(MARLO_TEST_HEADERS <fstream> <gtest/gtest.h> <set> <stdexcept>)
