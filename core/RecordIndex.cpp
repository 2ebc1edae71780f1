#include "core/RecordIndex.h"

#include <utility>

namespace marlo {

namespace {

constexpr int kFieldCount = 3;

}  // namespace

RecordIndex::RecordIndex(const Application& application, std::string relativePath, MakeKey makeKey)
    : application_(application),
      relativePath_(std::move(relativePath)),
      makeKey_(std::move(makeKey)) {}

std::optional<std::string_view> RecordIndex::Find(std::string_view key) {
    if (const auto number = keys_.Find(key))
        return lastFields_[*number];
    if (isComplete_)
        return std::nullopt;
    if (!file_)
        file_.emplace(application_, relativePath_, kFieldCount);
    while (hasRecord_ || file_->Next()) {
        hasRecord_ = true;
        const bool isNew = AddRecord();
        hasRecord_ = false;
        if (isNew && key_ == key)
            return lastFields_.back();
    }
    isComplete_ = true;
    return std::nullopt;
}

/// Puts the record that was read last into the table, if it is to be found and the first one with
/// its key. When memory runs out, nothing was done.
/// @return whether it was put there.
bool RecordIndex::AddRecord() {
    if (!makeKey_(*file_, key_))
        return false;
    lastFields_.resize(keys_.Size());
    lastFields_.push_back(keys_.Arena().Copy((*file_)[kFieldCount - 1]));
    return keys_.Add(key_);
}

}  // namespace marlo
