#include "tests/soak/Record.h"

#include <iomanip>

namespace marlo::soak {

std::set<std::string> Record::Missing() const {
    std::set<std::string> missing;
    for (const std::string& what : required_)
        if (!counts_.contains(what))
            missing.insert(what);
    return missing;
}

void Record::Print(std::ostream& out) const {
    constexpr int countWidth = 7;
    for (const auto& [what, count] : counts_)
        out << std::setw(countWidth) << count << "  " << what << '\n';
}

}  // namespace marlo::soak
