#include "app/cli/JsonList.h"

#include "app/cli/TerminalText.h"

namespace marlo::cli {

void JsonList::BeginObject() {
    out_ << (isEmpty_ ? "[\n  {" : "\n  },\n  {");
    isEmpty_ = false;
    isObjectEmpty_ = true;
}

void JsonList::AddName(std::string_view name) {
    out_ << (isObjectEmpty_ ? "\n    " : ",\n    ") << JsonText(name) << ": ";
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
    out_ << (isEmpty_ ? "[]\n" : "\n  }\n]\n");
}

}  // namespace marlo::cli
