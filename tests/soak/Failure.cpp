#include "tests/soak/Failure.h"

#include <cstdlib>
#include <iostream>
#include <sanitizer/common_interface_defs.h>

namespace marlo::soak {

namespace {

std::string& RunName() {
    static std::string name;
    return name;
}

}  // namespace

void Fail(const std::string& text) {
    std::cerr << "marlo-soak: " << text << "\nmarlo-soak: " << RunName() << std::endl;
    __sanitizer_print_stack_trace();
    std::_Exit(EXIT_FAILURE);
}

void SetRunName(const std::string& name) {
    RunName() = name;
}

}  // namespace marlo::soak
