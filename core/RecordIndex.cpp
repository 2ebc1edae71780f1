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
    while (file_->Next()) {
        if (!makeKey_(*file_, key_) || !keys_.Add(key_))
            continue;
        lastFields_.push_back(keys_.Arena().Copy((*file_)[kFieldCount - 1]));
        if (key_ == key)
            return lastFields_.back();
    }
    isComplete_ = true;
    return std::nullopt;
}

}  // namespace marlo
