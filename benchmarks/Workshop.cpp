#include "Workshop.h"

#include "platform/Machine.h"

#include <cstdlib>

namespace gfc::bench {

std::string Beside(const std::string& name) {
    return platform::MakePaths()->ExecutableFolder() + "/" + name;
}

void Workshop(const std::string& arguments) {
    (void)!std::system((Beside("io-workshop") + " " + arguments + " > /dev/null").c_str());
}

} // namespace gfc::bench
