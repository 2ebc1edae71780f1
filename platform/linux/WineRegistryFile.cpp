#include "platform/linux/WineRegistryFile.h"

#include <algorithm>
#include <limits>
#include <set>

#include "platform/File.h"

namespace marlo::platform {

namespace {

constexpr std::string_view kHeader = "WINE REGISTRY Version 2";

/// The whole of a file; empty when it is missing.
std::string ReadWhole(const std::string& path, std::error_code& error) {
    const auto file = File::OpenForReading(path, error);
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
        error.clear();
    else if (!error) {
        const std::uint64_t size = file.Size(error);
        if (!error && size > std::numeric_limits<std::uint32_t>::max())
            error = std::make_error_code(std::errc::file_too_large);
        if (error)
            return {};
        std::string text(size, '\0');
        text.resize(file.ReadAt(0, {reinterpret_cast<unsigned char*>(text.data()), size}, error));
        return text;
    }
    return {};
}

bool HasHeader(std::string_view text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    return line.substr(0, line.find('\r')) == kHeader;
}

std::size_t CountKeyLines(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = text.find("\n["); at != std::string_view::npos;
         at = text.find("\n[", at + 1))
        ++count;
    return count;
}

/// The step of a path at `index`, 0-based; empty when the path is shorter.
std::string_view Step(std::string_view path, std::size_t index) {
    const std::string_view head = Head(path, index + 1);
    return index == 0 ? head : head.substr(std::min(Head(path, index).size() + 1, head.size()));
}

}  // namespace

WineRegistryFile WineRegistryFile::Load(const std::string& path, std::error_code& error) {
    WineRegistryFile file;
    file.text_ = ReadWhole(path, error);
    if (HasHeader(file.text_))
        file.Index();
    return file;
}

void WineRegistryFile::Index() {
    entries_.reserve(CountKeyLines(text_));
    std::set<std::size_t> linked;
    bool inKey = false;
    for (std::size_t start = 0; start < text_.size();) {
        const std::size_t end = std::min(text_.find('\n', start), text_.size());
        const std::string_view line(text_.data() + start, end - start);
        if (line.starts_with('[')) {
            inKey = AddKey(start, end);
        } else if (inKey) {
            entries_.back().linesEnd = static_cast<std::uint32_t>(std::min(end + 1, text_.size()));
            if (line.starts_with("#link"))
                linked.insert(entries_.size() - 1);
        } else if (line.starts_with("#arch=win32")) {
            isWin32_ = true;
        }
        start = end + 1;
    }
    for (const std::size_t index : linked)
        AddLink(entries_[index]);
    std::sort(links_.begin(), links_.end(), [](const Link& left, const Link& right) {
        return CompareNames(left.path, right.path) < 0;
    });
    const auto comesBefore = [this](const Entry& left, const Entry& right) {
        return CompareNames(PathOf(left), PathOf(right)) < 0;
    };
    // Wine keeps its files sorted, others may have touched this one.
    if (!std::is_sorted(entries_.begin(), entries_.end(), comesBefore))
        std::stable_sort(entries_.begin(), entries_.end(), comesBefore);
}

/// Adds the key of the line from `start` to `end`.
/// @return false when the line is malformed; the lines after it belong to no key then.
bool WineRegistryFile::AddKey(std::size_t start, std::size_t end) {
    std::string_view rest(text_.data() + start + 1, end - start - 1);
    const std::string path = Unescape(rest, ']');
    if (rest.empty())
        return false;
    // What the escapes stand for is never longer, so the path has room where it was.
    text_.replace(start, path.size(), path);
    const auto lines = static_cast<std::uint32_t>(std::min(end + 1, text_.size()));
    entries_.push_back({.path = static_cast<std::uint32_t>(start),
                        .pathLength = static_cast<std::uint32_t>(path.size()),
                        .lines = lines,
                        .linesEnd = lines});
    return true;
}

void WineRegistryFile::AddLink(const Entry& entry) {
    const auto value = FindValue(LinesOf(entry), "SymbolicLinkValue");
    std::string target = value ? Utf8FromUtf16(value->data) : "";
    // Registries are no deeper, and each step costs time when the link is followed.
    constexpr std::size_t deepest = 512;
    if (target.starts_with('\\') && Depth(target) <= deepest)
        links_.push_back({std::string(PathOf(entry)), std::move(target)});
}

const WineRegistryFile::Link* WineRegistryFile::FindLink(std::string_view path) const {
    for (std::size_t depth = 1; !links_.empty() && depth <= Depth(path); ++depth) {
        const std::string_view head = Head(path, depth);
        const auto found = std::lower_bound(links_.begin(), links_.end(), head,
                                            [](const Link& link, std::string_view wanted) {
                                                return CompareNames(link.path, wanted) < 0;
                                            });
        if (found != links_.end() && CompareNames(found->path, head) == 0)
            return &*found;
    }
    return nullptr;
}

std::optional<WineRegistryFile::Node> WineRegistryFile::Find(std::string_view path) const {
    const auto first = std::lower_bound(entries_.begin(), entries_.end(), path,
                                        [this](const Entry& entry, std::string_view wanted) {
                                            return CompareNames(PathOf(entry), wanted) < 0;
                                        });
    const std::size_t depth = Depth(path);
    const auto last = std::partition_point(first, entries_.end(), [&](const Entry& entry) {
        return CompareNames(Head(PathOf(entry), depth), path) == 0;
    });
    if (first == last)
        return std::nullopt;
    return Node{.first = static_cast<std::size_t>(first - entries_.begin()),
                .last = static_cast<std::size_t>(last - entries_.begin()),
                .depth = depth};
}

std::vector<std::string_view> WineRegistryFile::Subkeys(const Node& node) const {
    std::vector<std::string_view> names;
    for (std::size_t i = node.first; i < node.last; ++i) {
        const std::string_view name = Step(PathOf(entries_[i]), node.depth);
        if (!name.empty() && (names.empty() || CompareNames(names.back(), name) != 0))
            names.push_back(name);
    }
    return names;
}

std::optional<WineValue> WineRegistryFile::Value(const Node& node, std::string_view name) const {
    std::optional<WineValue> found;
    for (std::size_t i = node.first; i < node.last; ++i) {
        if (Depth(PathOf(entries_[i])) > node.depth)
            break;
        if (auto value = FindValue(LinesOf(entries_[i]), name))
            found = std::move(value);  // a key that the file has twice
    }
    return found;
}

bool WineRegistryFile::IsBare(const Node& node) const {
    return std::none_of(entries_.begin() + static_cast<std::ptrdiff_t>(node.first),
                        entries_.begin() + static_cast<std::ptrdiff_t>(node.last),
                        [&](const Entry& entry) {
                            return Depth(PathOf(entry)) > node.depth || HasValues(LinesOf(entry));
                        });
}

std::string_view WineRegistryFile::PathOf(const Entry& entry) const {
    return std::string_view(text_).substr(entry.path, entry.pathLength);
}

std::string_view WineRegistryFile::LinesOf(const Entry& entry) const {
    return std::string_view(text_).substr(entry.lines, entry.linesEnd - entry.lines);
}

}  // namespace marlo::platform
