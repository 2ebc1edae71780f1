#pragma once

#include <ostream>
#include <string_view>

namespace marlo::cli {

/// JSON objects, printed as they come: a report as large as memory allows needs no more of it here.
class JsonList {
  public:
    enum class Layout {
        Array,  ///< one array, with a line for each field
        Lines,  ///< a line for each object, and no array
    };

    /// @param out has to outlive this.
    explicit JsonList(std::ostream& out, Layout layout = Layout::Array);

    /// Begins the next object.
    void BeginObject();

    /// Adds a field of a record to the object, as text.
    void AddText(std::string_view name, std::string_view field);

    /// Adds true or false to the object.
    void AddFlag(std::string_view name, bool value);

    /// Ends what was begun, and the line.
    void End();

  private:
    /// What stands between the names and values.
    struct Marks {
        const char* first;      ///< in front of the first object
        const char* next;       ///< in front of another one
        const char* firstName;  ///< in front of an object's first name
        const char* nextName;
        const char* end;   ///< behind the last object
        const char* none;  ///< where there is no object
    };

    static Marks MarksOf(Layout layout);
    void AddName(std::string_view name);

    std::ostream& out_;
    Marks marks_;
    bool isEmpty_ = true;        ///< there is no object yet
    bool isObjectEmpty_ = true;  ///< the last object has no field yet
};

}  // namespace marlo::cli
