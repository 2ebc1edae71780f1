#include "app/cli/JsonList.h"

#include "app/cli/TerminalText.h"

namespace marlo::cli {

JsonList::JsonList(std::ostream& out, Layout layout) : out_(out), marks_(MarksOf(layout)) {}

JsonList::Marks JsonList::MarksOf(Layout layout) {
    if (layout == Layout::Lines)
        return {"{", "}\n{", "", ", ", "}\n", ""};
    return {"[\n  {", "\n  },\n  {", "\n    ", ",\n    ", "\n  }\n]\n", "[]\n"};
}

void JsonList::BeginObject() {
    out_ << (isEmpty_ ? marks_.first : marks_.next);
    isEmpty_ = false;
    isObjectEmpty_ = true;
}

void JsonList::AddName(std::string_view name) {
    out_ << (isObjectEmpty_ ? marks_.firstName : marks_.nextName) << JsonText(name) << ": ";
    isObjectEmpty_ = false;
}

void JsonList::AddText(std::string_view name, std::string_view field) {
    AddName(name);
    out_ << JsonText(field);
}

void JsonList::AddFlag(std::string_view name, bool value) {
    AddName(name);
    out_ << (value ? "true" : "false");
}

void JsonList::End() {
    out_ << (isEmpty_ ? marks_.none : marks_.end);
}

}  // namespace marlo::cli
