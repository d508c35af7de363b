#pragma once

#include "platform/Files.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace gfc::test {

// Of two names of a file that differ in their separators alone the machine makes none.
struct PathLess {
    bool operator()(std::string left, std::string right) const {
#ifdef _WIN32
        std::ranges::replace(left, '\\', '/');
        std::ranges::replace(right, '\\', '/');
#endif
        return left < right;
    }
};

// A file system in memory. Failures are asked for by path; Reads and Replaces count the accesses.
class MemoryFiles : public platform::Files {
public:
    static constexpr const char* Denied = "Permission denied";
    static constexpr const char* Full = "No space left on device";

    std::optional<std::string> Read(const std::string& path) override {
        ++Reads;
        const auto found = Content.find(path);
        if (found == Content.end() || Unreadable.contains(path)) {
            Fail(found == Content.end() ? "No such file or directory" : "Input/output error");
            return std::nullopt;
        }
        return found->second;
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
        if (!TakesBytes(path))
            return false;
        Content[path] = bytes;
        return true;
    }

    bool PutAnew(const std::string& path, std::string_view bytes,
                 const std::function<bool()>& makeWay) override {
        if (!TakesBytes(path) || !makeWay())
            return false;
        Content[path] = bytes;
        return true;
    }

    bool Exists(const std::string& path) override { return Content.contains(path); }

    bool Delete(const std::string& path) override {
        if (Unwritable.contains(path) || Held.contains(path))
            return Fail(Denied);
        return Content.erase(path) > 0 || Fail("No such file or directory");
    }

    bool CopyNew(const std::string& from, const std::string& to) override {
        if (Content.contains(to))
            return Fail("File exists");
        const auto bytes = Read(from);
        if (!bytes || !TakesBytes(to))
            return false;
        return Content.emplace(to, *bytes).second;
    }

    std::map<std::string, std::string, PathLess> Content;
    std::set<std::string, PathLess> Unreadable;
    std::set<std::string, PathLess> Unwritable; // may neither be written nor deleted
    std::set<std::string, PathLess> Held;       // may not be deleted
    bool DiskFull = false;                      // takes no bytes, but lets files go
    int FullFor = 0;                            // the same, for so many more attempts
    int Reads = 0;
    int Replaces = 0;

private:
    bool TakesBytes(const std::string& path) {
        if (Unwritable.contains(path))
            return Fail(Denied);
        const bool full = DiskFull || FullFor > 0;
        FullFor -= FullFor > 0 ? 1 : 0;
        return !full || Fail(Full);
    }
};

} // namespace gfc::test
