#pragma once

#include "project/TagInventory.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gfc::project {

struct Station {
    std::string Name; // cut at its first NUL
    std::string Type;
    std::string Address; // IP address
    std::int32_t SerialNumber = 0;
};

// What the rest of the program may ask of the I/O Workshop tool. Texts are UTF-8, cut at their first NUL.
class AddOnLibrary {
public:
    virtual ~AddOnLibrary() = default;

    // The full path of the project that is open in the tool; empty if none is.
    [[nodiscard]] virtual std::string GetProjectFile() = 0;
    // Nothing if the call failed.
    [[nodiscard]] virtual std::optional<std::vector<Station>> GetStations() = 0;
    // onTag is called with each tag's name as it is copied. Zero or less than zero tags give an empty list.
    [[nodiscard]] virtual TagList ReadTags(const std::string& station, const std::string& projectFile,
                                           const std::function<void(std::string_view)>& onTag) = 0;
    virtual void AddFileToLoad(const std::string& station, const std::string& local,
                               const std::string& target) = 0;
    virtual int RemoveFileToLoad(const std::string& station, const std::string& local,
                                 const std::string& target) = 0;
    virtual void CoInitialize() = 0;
    // What is wrong with the library, naming its file; empty while nothing is. Once it is not, no call
    // reaches the library, and each gives nothing.
    [[nodiscard]] virtual std::string Fault() const { return {}; }
};

} // namespace gfc::project
