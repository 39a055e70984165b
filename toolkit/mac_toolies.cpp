#include "mac_toolies.h"

#include <memory>
#include <stdexcept>

namespace {
std::unique_ptr<mac_toolies> shared_instance;
}

void mac_toolies::initialize(const toolkit_doors& doors) {
    shared_instance = std::make_unique<mac_toolies>(doors);
}

mac_toolies& mac_toolies::sharedManager() {
    if (!shared_instance)
        throw std::logic_error("mac_toolies::initialize has not been called");
    return *shared_instance;
}
