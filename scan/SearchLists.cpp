#include "scan/SearchLists.h"

#include "core/RunTimeError.h"

namespace marlo {

namespace {

void CheckIndex(std::size_t index, std::size_t upperBound) {
    if (index < 1 || index > upperBound)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
}

}  // namespace

std::string_view TextList::operator[](std::size_t index) const {
    CheckIndex(index, UpperBound());
    return texts_[index - 1];
}

void TextList::Append(std::string_view text) {
    texts_.push_back(arena_.Copy(text));
}

std::string_view KeyList::operator[](std::size_t index) const {
    CheckIndex(index, UpperBound());
    return keys_[index - 1];
}

std::size_t KeyList::FindOrAdd(std::string_view key, const std::function<void()>& beforeAdding) {
    return keys_.FindOrAdd(key, beforeAdding) + 1;
}

std::string_view StateList::operator[](std::size_t index) const {
    CheckIndex(index, UpperBound());
    return states_[index - 1];
}

PluginState MergeState(KeyList& keys, StateList& states, std::string_view key,
                       std::string_view state, const std::function<void()>& beforeAdding) {
    std::size_t index = 0;
    try {
        index = keys.FindOrAdd(key, [&] {
            beforeAdding();
            states.Append();
        });
    } catch (...) {
        states.Shrink(keys.UpperBound());  // the key may have failed after its state was added
        throw;
    }
    if (state == kOn)
        states.TurnOn(index);
    return {keys[index], states[index]};
}

std::string RecordOf(const PluginState& plugin) {
    std::string record;
    record.reserve(plugin.key.size() + plugin.state.size() + std::string_view(R"(,"")").size());
    record.append(plugin.key).append(",\"").append(plugin.state).append("\"");
    return record;
}

}  // namespace marlo
