#pragma once

#include <map>
#include <ostream>
#include <set>
#include <string>

namespace marlo::soak {

/// What has happened, and how often.
class Record {
  public:
    void Count(const std::string& what) { ++counts_[what]; }

    /// Has `what` be missing until it happens.
    void Require(const std::string& what) { required_.insert(what); }
    /// What is required and has not happened.
    std::set<std::string> Missing() const;

    void Print(std::ostream& out) const;

  private:
    std::map<std::string, int> counts_;
    std::set<std::string> required_;
};

}  // namespace marlo::soak
