#pragma once

#include "platform/Files.h"

#include <map>
#include <set>
#include <string>

namespace gfc::test {

// A file system in memory. Failures are asked for by path; Reads and Replaces count the accesses.
class MemoryFiles : public platform::Files {
public:
    std::optional<std::string> Read(const std::string& path) override {
        ++Reads;
        const auto found = Content.find(path);
        return found == Content.end() || Unreadable.contains(path) ? std::nullopt
                                                                   : std::optional(found->second);
    }

    // Never more than is asked for, as the machine does it.
    std::optional<std::string> ReadStart(const std::string& path, std::size_t enough) override {
        auto bytes = Read(path);
        if (bytes && bytes->size() > enough)
            bytes->resize(enough);
        return bytes;
    }

    bool Replace(const std::string& path, std::string_view bytes) override {
        ++Replaces;
        if (Unwritable.contains(path))
            return false;
        Content[path] = bytes;
        return true;
    }

    bool Exists(const std::string& path) override { return Content.contains(path); }

    bool Delete(const std::string& path) override {
        return !Unwritable.contains(path) && Content.erase(path) > 0;
    }

    bool CopyNew(const std::string& from, const std::string& to) override {
        const auto found = Content.find(from);
        if (found == Content.end() || Unreadable.contains(from) || Unwritable.contains(to))
            return false;
        return Content.emplace(to, found->second).second;
    }

    std::map<std::string, std::string> Content;
    std::set<std::string> Unreadable;
    std::set<std::string> Unwritable;
    int Reads = 0;
    int Replaces = 0;
};

} // namespace gfc::test
