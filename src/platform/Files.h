#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

// What the rest of the system asks of the file system. All paths and texts are UTF-8. No call throws.
namespace gfc::platform {

#ifdef _WIN32
inline constexpr char Separator = '\\';
#else
inline constexpr char Separator = '/';
#endif

// The folder that the last name of the path stands in, without a separator at its end; both separators count,
// on every machine. Empty for a path without a folder and for what stands in the root, so that folder +
// Separator + name is right there too.
[[nodiscard]] std::string ParentFolder(std::string_view path);

// The path with this machine's separator in place of the other one.
[[nodiscard]] std::string WithOwnSeparators(std::string_view path);

// The path as this machine's calls take it however long it is, for a library that makes them itself; a file
// that it opens beside it may have a longer name by 60 characters.
[[nodiscard]] std::string PathForCalls(const std::string& path);

class Files {
public:
    virtual ~Files() = default;

    // The whole file; nothing if it is missing, no plain file, or cannot be read.
    [[nodiscard]] virtual std::optional<std::string> Read(const std::string& path) = 0;

    // The same for who needs the file's first bytes alone: at least so many of them, or all that there are.
    [[nodiscard]] virtual std::optional<std::string> ReadStart(const std::string& path, std::size_t enough);

    // Puts these bytes in the place of the file, which need not exist. Whatever goes wrong, and whenever the
    // process dies, the file is the old one or the new one. Keeps the mode of an existing file and replaces
    // what a link points to. False if the new bytes are not safely on disk, also where the file may not be
    // written.
    [[nodiscard]] virtual bool Replace(const std::string& path, std::string_view bytes) = 0;

    // As Replace, for a file that is to be new: makeWay takes away what stands there, and is called once the
    // bytes stand whole and safe beside it, so that nothing but a rename is left to be done. False, with the
    // file as makeWay left it, where makeWay says so or a step fails; nothing is called if the bytes cannot
    // be written.
    [[nodiscard]] virtual bool PutAnew(const std::string& path, std::string_view bytes,
                                       const std::function<bool()>& makeWay) = 0;

    // True for a file, not for a folder. True also where the machine cannot tell, so that what may be there
    // is not taken for missing: nothing is written over it, and its station keeps its entry among the files
    // to load.
    [[nodiscard]] virtual bool Exists(const std::string& path) = 0;

    // True if a file was there and is gone.
    virtual bool Delete(const std::string& path) = 0;

    // Copies a file to a path where nothing is yet; false, with nothing changed, if something is there or a
    // step fails.
    [[nodiscard]] virtual bool CopyNew(const std::string& from, const std::string& to) = 0;

    // What the system gave as reason when a call failed the last time, in its own words and language, without
    // a line break; empty if none has failed yet. Exists fails for no reason, nor does a makeWay.
    [[nodiscard]] const std::string& LastFailure() const { return lastFailure_; }

protected:
    // For who failed; gives false.
    bool Fail(std::string reason);

private:
    std::string lastFailure_;
};

[[nodiscard]] std::unique_ptr<Files> MakeFiles();

} // namespace gfc::platform
