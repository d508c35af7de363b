#include "Workshop.h"

#include "platform/Machine.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace gfc::bench {

std::string Beside(const std::string& name) {
    return platform::MakePaths()->ExecutableFolder() + "/" + name;
}

std::string FirstLineOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> process(::popen(command.c_str(), "r"), ::pclose);
    char line[64] = "";
    return process != nullptr && std::fgets(line, sizeof line, process.get()) != nullptr ? line : "";
}

void Workshop(const std::string& arguments) {
    (void)!std::system((Beside("io-workshop") + " " + arguments + " > /dev/null").c_str());
}

} // namespace gfc::bench
