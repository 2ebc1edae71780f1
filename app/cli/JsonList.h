#pragma once

#include <ostream>
#include <string_view>

namespace marlo::cli {

/// A JSON array of objects, printed as it comes: a report as large as memory allows needs no more
/// of it here.
class JsonList {
  public:
    /// @param out has to outlive this.
    explicit JsonList(std::ostream& out) : out_(out) {}

    /// Begins the next object.
    void BeginObject();

    /// Adds a field of a record to the object, as text.
    void AddText(std::string_view name, std::string_view field);

    /// Adds true or false to the object.
    void AddFlag(std::string_view name, bool value);

    /// Ends the array, and the line.
    void End();

  private:
    void AddName(std::string_view name);

    std::ostream& out_;
    bool isEmpty_ = true;        ///< there is no object yet
    bool isObjectEmpty_ = true;  ///< the last object has no field yet
};

}  // namespace marlo::cli
