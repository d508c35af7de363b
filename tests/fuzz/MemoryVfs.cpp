#include "fuzz/MemoryVfs.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <new>

namespace gfc::fuzz {

namespace {

std::map<std::string, std::string>& Files() {
    static std::map<std::string, std::string> files;
    return files;
}

// SQLite gives the room, of the size that the file system asks for.
struct OpenFile {
    sqlite3_file Base; // first, as SQLite knows only this part
    std::string* Bytes;
};

std::string& BytesOf(sqlite3_file* file) {
    return *reinterpret_cast<OpenFile*>(file)->Bytes;
}

int Close(sqlite3_file* /*file*/) {
    return SQLITE_OK;
}

int Read(sqlite3_file* file, void* buffer, int size, sqlite3_int64 offset) {
    const std::string& bytes = BytesOf(file);
    const auto from = std::min(static_cast<std::size_t>(offset), bytes.size());
    const auto wanted = static_cast<std::size_t>(size);
    const std::size_t there = std::min(wanted, bytes.size() - from);
    std::memcpy(buffer, bytes.data() + from, there);
    std::memset(static_cast<char*>(buffer) + there, 0, wanted - there);
    return there == wanted ? SQLITE_OK : SQLITE_IOERR_SHORT_READ;
}

int Write(sqlite3_file* file, const void* buffer, int size, sqlite3_int64 offset) {
    constexpr std::size_t largest = 1 << 20; // a damaged project may ask for anything
    std::string& bytes = BytesOf(file);
    const auto end = static_cast<std::size_t>(offset) + static_cast<std::size_t>(size);
    if (end > largest)
        return SQLITE_FULL;
    bytes.resize(std::max(bytes.size(), end));
    std::memcpy(bytes.data() + offset, buffer, static_cast<std::size_t>(size));
    return SQLITE_OK;
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    BytesOf(file).resize(std::min(BytesOf(file).size(), static_cast<std::size_t>(size)));
    return SQLITE_OK;
}

int Sync(sqlite3_file* /*file*/, int /*flags*/) {
    return SQLITE_OK;
}

int FileSize(sqlite3_file* file, sqlite3_int64* size) {
    *size = static_cast<sqlite3_int64>(BytesOf(file).size());
    return SQLITE_OK;
}

int Lock(sqlite3_file* /*file*/, int /*level*/) {
    return SQLITE_OK;
}

int IsReserved(sqlite3_file* /*file*/, int* reserved) {
    *reserved = 0;
    return SQLITE_OK;
}

int Control(sqlite3_file* /*file*/, int /*operation*/, void* /*argument*/) {
    return SQLITE_NOTFOUND;
}

int SectorSize(sqlite3_file* /*file*/) {
    return 512;
}

int Characteristics(sqlite3_file* /*file*/) {
    return 0;
}

// Version 1 knows no shared memory: a file in the mode that wants it is refused.
constexpr sqlite3_io_methods Methods = {
    1,       Close,      Read,    Write,      Truncate,        Sync,    FileSize, Lock,
    Lock,    IsReserved, Control, SectorSize, Characteristics, nullptr, nullptr,  nullptr,
    nullptr, nullptr,    nullptr};

int Open(sqlite3_vfs* /*vfs*/, const char* name, sqlite3_file* room, int flags, int* outFlags) {
    auto* file = new (room) OpenFile{};
    file->Base.pMethods = &Methods;
    file->Bytes = &Files()[name == nullptr ? "" : name];
    if (outFlags != nullptr)
        *outFlags = flags;
    return SQLITE_OK;
}

int Delete(sqlite3_vfs* /*vfs*/, const char* name, int /*syncFolder*/) {
    return Files().erase(name) > 0 ? SQLITE_OK : SQLITE_IOERR_DELETE_NOENT;
}

int Access(sqlite3_vfs* /*vfs*/, const char* name, int /*flags*/, int* result) {
    *result = Files().contains(name) ? 1 : 0;
    return SQLITE_OK;
}

int FullPath(sqlite3_vfs* /*vfs*/, const char* name, int size, char* path) {
    sqlite3_snprintf(size, path, "%s", name);
    return SQLITE_OK;
}

// The default one, before anything else became it.
sqlite3_vfs& MachineVfs() {
    static sqlite3_vfs& vfs = *sqlite3_vfs_find(nullptr);
    return vfs;
}

// All but files, such as the time, comes from the machine's own.
sqlite3_vfs& MemoryVfs() {
    static sqlite3_vfs vfs = [] {
        sqlite3_vfs made = MachineVfs();
        made.szOsFile = sizeof(OpenFile);
        made.pNext = nullptr;
        made.zName = "memory-files";
        made.xOpen = Open;
        made.xDelete = Delete;
        made.xAccess = Access;
        made.xFullPathname = FullPath;
        return made;
    }();
    return vfs;
}

} // namespace

void UseMemoryVfs() {
    sqlite3_vfs_register(&MemoryVfs(), 1);
}

void UseMachineVfs() {
    sqlite3_vfs_register(&MachineVfs(), 1);
}

std::string& MemoryFile(const std::string& path) {
    return Files()[path];
}

void ForgetMemoryFiles(const std::string& start) {
    std::erase_if(Files(), [&](const auto& file) { return file.first.starts_with(start); });
}

} // namespace gfc::fuzz
