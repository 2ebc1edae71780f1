#include "dialogs/RunLog.h"

#include "core/Settings.h"

namespace marlo {

namespace {

std::string SearchPath(const std::string& folder, const std::string& includeSubfolders) {
    if (includeSubfolders.empty())
        return folder;
    if (includeSubfolders == "0")
        return folder + " - Excluding sub folders";
    return includeSubfolders == "1" ? folder + " - Including sub folders" : "";
}

}  // namespace

RunLog ReadRunLog(const Application& application) {
    return {.searchDate = getSetting(application, setting::kLastSearch),
            .searchPath = SearchPath(getSetting(application, setting::kLastFolder),
                                     getSetting(application, setting::kIncludeSubfolders)),
            .inventoryDate = getSetting(application, setting::kLastInventory)};
}

}  // namespace marlo
