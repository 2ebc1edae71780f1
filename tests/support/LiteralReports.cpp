#include "tests/support/LiteralReports.h"

#include <algorithm>
#include <fstream>
#include <initializer_list>
#include <string_view>
#include <system_error>

#include "core/ErrorLog.h"
#include "core/Records.h"
#include "core/RunTimeError.h"
#include "core/Settings.h"
#include "core/Text.h"
#include "platform/File.h"
#include "platform/FileSystem.h"
#include "reports/DateText.h"

namespace marlo::test {

namespace {

std::string Joined(std::initializer_list<std::string_view> texts) {
    std::string joined;
    for (const std::string_view text : texts)
        joined += text;
    return joined;
}

}  // namespace

/// The lines of a result file, read anew.
std::vector<std::string> LiteralReports::Lines(const std::string& name) const {
    const std::string path = application_.folder + "/resultfiles/" + name;
    std::error_code error;
    platform::File::OpenForReading(path, error);
    ThrowOn(error);
    std::ifstream file(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        const bool hasEnd = !file.eof();
        if (hasEnd && line.ends_with('\r'))
            line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

LiteralReports::Fields LiteralReports::Split(const std::string& line, bool isFirstReading,
                                             int fieldCount) const {
    if (isFirstReading)
        return SplitRecord(application_, line, fieldCount);
    Application silent = application_;
    silent.folder = "/nowhere";
    silent.onErrorLogged = {};
    return SplitRecord(silent, line, fieldCount);
}

bool LiteralReports::HasKey(const std::string& key) const {
    return std::any_of(rows_.begin(), rows_.end(),
                       [&](const LiteralRow& row) { return row.key == key; });
}

LiteralRow& LiteralReports::Add(const std::string& key, const std::string& text) {
    if (HasKey(key))
        throw RunTimeError(ErrorNumber::KeyNotUnique);
    rows_.push_back({key, Fields(static_cast<std::size_t>(columnCount_))});
    rows_.back().cells[0] = text;
    return rows_.back();
}

void LiteralReports::Set(LiteralRow& row, int subItem, const std::string& text) const {
    if (subItem < 1 || subItem >= columnCount_)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    row.cells[static_cast<std::size_t>(subItem)] = text;
}

void LiteralReports::AddPlaceholder(const std::string& text) {
    if (rows_.empty())
        Add(text, text);
}

bool LiteralReports::Ignores(std::int16_t record) const {
    return getSetting(application_, record) == "1";
}

template <class Body>
void LiteralReports::Run(const char* procedure, Body body) {
    if (!RunGuarded(application_, procedure, body))
        window_.ShowMessage(
            {.text = "An unexpected error occurred.", .icon = MessageIcon::Exclamation});
}

bool LiteralReports::PluginIsInstalled(const std::string& name) {
    bool isInstalled = false;
    RunGuarded(application_, "PluginIsInstalled", [&] {
        std::size_t number = 0;
        for (const std::string& line : Lines("installedplugins.csv")) {
            const Fields fields = Split(line, number >= linesRead_);
            linesRead_ = std::max(linesRead_, ++number);
            if (fields[1] == name) {
                isInstalled = true;
                return;
            }
        }
    });
    return isInstalled;
}

void LiteralReports::ShowAllPlugins(int typeColumn, int pathColumn) {
    Run("ShowAllPlugins", [&] {
        const bool ignoreDirectX = Ignores(20);
        for (const std::string& line : Lines("installedplugins.csv")) {
            const Fields fields = Split(line, true);
            const std::string& type = fields[0];
            const std::string& name = fields[1];
            const std::string& path = fields[2];
            if (ignoreDirectX && type == "DirectX")
                continue;
            const std::string key = Joined({name, type, path});
            if (HasKey(key))
                continue;
            LiteralRow& row = Add(key, name);
            if (!ignoreDirectX)
                Set(row, typeColumn - 1, type);
            if (type == "VST")
                Set(row, pathColumn - 1, path);
        }
        AddPlaceholder("No plugins found");
    });
}

void LiteralReports::ShowUsedPlugins(int typeColumn, int pathColumn, int statusColumn) {
    Run("ShowUsedPlugins", [&] {
        const bool ignoreDirectX = Ignores(20);
        const bool ignoreOff = Ignores(21);
        for (const std::string& usedLine : Lines("tln.csv")) {
            const Fields used = Split(usedLine, true);
            bool isInstalled = false;
            std::string installedType;
            std::string installedPath;
            std::size_t number = 0;
            for (const std::string& line : Lines("installedplugins.csv")) {
                const Fields fields = Split(line, number >= linesRead_);
                linesRead_ = std::max(linesRead_, ++number);
                if (fields[1] == used[0] && fields[0] == used[1]) {
                    isInstalled = true;
                    installedType = fields[0];
                    installedPath = fields[2];
                    break;
                }
            }
            const std::string key = Joined({used[0], used[1], installedPath, used[2]});
            if (HasKey(key))
                continue;
            LiteralRow& row = Add(key, used[0]);
            if (!ignoreDirectX)
                Set(row, typeColumn - 1, used[1]);
            if (!isInstalled)
                Set(row, pathColumn - 1, "!Not Installed!");
            else if (installedType == "VST")
                Set(row, pathColumn - 1, installedPath);
            if (!ignoreOff)
                Set(row, statusColumn - 1, used[2]);
            row.isGreyed = !isInstalled;
        }
        AddPlaceholder("No plugins found");
    });
}

void LiteralReports::ShowUnusedPlugins(int typeColumn, int pathColumn) {
    Run("ShowUnusedPlugins", [&] {
        const bool ignoreDirectX = Ignores(20);
        const bool ignoreOff = Ignores(21);
        for (const std::string& installedLine : Lines("installedplugins.csv")) {
            const Fields installed = Split(installedLine, true);
            if (ignoreDirectX && installed[0] == "DirectX")
                continue;
            bool isUsed = false;
            std::size_t number = 0;
            for (const std::string& line : Lines("tln.csv")) {
                const Fields fields = Split(line, number >= linesRead_);
                linesRead_ = std::max(linesRead_, ++number);
                if (fields[0] != installed[1] || fields[1] != installed[0])
                    continue;
                if (ignoreOff && fields[2] == "Off")
                    continue;
                isUsed = true;
                break;
            }
            const std::string key = Joined({installed[1], installed[0], installed[2]});
            if (isUsed || HasKey(key))
                continue;
            LiteralRow& row = Add(key, installed[1]);
            if (!ignoreDirectX)
                Set(row, typeColumn - 1, installed[0]);
            if (installed[0] == "VST")
                Set(row, pathColumn - 1, installed[2]);
        }
        AddPlaceholder("No plugins found");
    });
}

void LiteralReports::ShowUninstalledPlugins(int typeColumn, int statusColumn) {
    Run("ShowUnusedPlugins", [&] {
        const bool ignoreDirectX = Ignores(20);
        const bool ignoreOff = Ignores(21);
        for (const std::string& line : Lines("tln.csv")) {
            const Fields used = Split(line, true);
            const std::string key = Joined({used[0], used[1], used[2]});
            if (PluginIsInstalled(used[0]) || HasKey(key))
                continue;
            LiteralRow& row = Add(key, used[0]);
            if (!ignoreDirectX)
                Set(row, typeColumn - 1, used[1]);
            if (!ignoreOff)
                Set(row, statusColumn - 1, used[2]);
        }
    });
}

void LiteralReports::SearchResultFiles(const SearchPane& search, int typeColumn, int statusColumn) {
    Run("SearchResultFiles", [&] {
        const bool ignoreDirectX = Ignores(20);
        const bool ignoreOff = Ignores(21);
        const auto comparable = [&](const std::string& text) {
            return search.chkIgnoreCase ? UpperCase(Decode(text)) : Decode(text);
        };
        const std::u32string text = comparable(search.txtSearchText);
        for (const std::string& line : Lines("fln.csv")) {
            const Fields use = Split(line, true, 4);
            if (ignoreDirectX && use[2] == "DirectX")
                continue;
            const std::u32string value =
                comparable(search.mode == SearchMode::PluginsInProject ? use[0] : use[1]);
            if (use[3] == "Off" && ignoreOff)
                continue;
            // Counted from 1, and 0 for nowhere.
            const std::size_t position = value.empty() ? 0 : value.find(text) + 1;
            const bool matches = (search.cboSearchType == MatchType::Exact && value == text) ||
                                 (search.cboSearchType == MatchType::StartsWith && position == 1) ||
                                 (search.cboSearchType == MatchType::EndsWith && position != 0 &&
                                  position + text.size() - 1 == value.size()) ||
                                 (search.cboSearchType == MatchType::Contains && position != 0);
            if (!matches)
                continue;
            LiteralRow& row = Add(Joined({use[0], use[1], use[2], use[3]}), use[0]);
            std::error_code error;
            const std::tm modified = platform::LastModified(use[0], error);
            ThrowOn(error);
            Set(row, 1, GeneralDate(modified));
            Set(row, 2, use[1]);
            if (!ignoreDirectX)
                Set(row, typeColumn - 1, use[2]);
            if (!ignoreOff)
                Set(row, statusColumn - 1, use[3]);
            row.isGreyed = !PluginIsInstalled(use[1]);
        }
        AddPlaceholder("No projects found");
    });
}

}  // namespace marlo::test
