// An add-on library that answers what no library should, as slowly as it likes. Which way it does, and what
// goes on in each call before it comes back, is set before.
#include "project/AddOnInterface.h"

#include <cstring>
#include <map>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#endif

using gfc::project::StationRecord;
using gfc::project::TagRecord;
using gfc::project::TagRequest;

namespace {

// In the order of the test's table.
enum class Way {
    NullArrays,
    NegativeCounts,
    LargestCounts,
    OneRecordTooMany, // the array ends where the memory does
    WildPointers,
    NoAccess,
    Unterminated,
    Misaligned,
    NothingWritten, // success, and the caller's own variables left as they were
    WritesBack,     // all over the texts that it was handed
    UpsetsFloats,   // leaves the processor calculating otherwise
};

constexpr std::int32_t Records = 3;
Way theWay = Way::NullArrays;
void (*theDelay)() = [] {};

std::map<std::string, int>& Calls() {
    static std::map<std::string, int> calls;
    return calls;
}

// The least precision and every trap on, and a division by zero that nobody has noticed yet.
void UpsetFloats() {
#if defined(__i386__) || defined(__x86_64__)
    if (theWay != Way::UpsetsFloats)
        return;
    const unsigned short control = 0x0040;
    const unsigned mxcsr = 0x6000; // rounds towards zero, all traps on
    __asm__ volatile("fldz\n\tfld1\n\tfdiv %%st(1), %%st\n\t"
                     "fldcw %0\n\tldmxcsr %1"
                     :
                     : "m"(control), "m"(mxcsr));
#endif
}

// At the start of each function.
void Enter(const char* function) {
    ++Calls()[function];
    theDelay();
    UpsetFloats();
}

// A page that may be written, and behind it one that nobody may touch.
char* PageAtTheEdge(std::size_t& page) {
#ifdef _WIN32
    SYSTEM_INFO system{};
    ::GetSystemInfo(&system);
    page = system.dwPageSize;
    void* const pages = ::VirtualAlloc(nullptr, 2 * page, MEM_RESERVE, PAGE_NOACCESS);
    return static_cast<char*>(::VirtualAlloc(pages, page, MEM_COMMIT, PAGE_READWRITE));
#else
    page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    auto* const pages = static_cast<char*>(
        ::mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ::mprotect(pages + page, page, PROT_NONE);
    return pages;
#endif
}

// So many bytes that the first one behind them belongs to nobody.
char* UpToTheEdge(std::size_t size) {
    std::size_t page = 0;
    char* const pages = PageAtTheEdge(page);
    return pages + page - size;
}

template <class Record>
void* Array() {
    static std::vector<char> room;
    switch (theWay) {
    case Way::NullArrays:
        return nullptr;
    case Way::OneRecordTooMany:
        return UpToTheEdge((Records - 1) * sizeof(Record));
    case Way::WildPointers:
        return reinterpret_cast<void*>(0x10);
    case Way::NoAccess:
        return UpToTheEdge(0);
    default:
        room.assign(Records * sizeof(Record) + 1, 'x'); // no NUL anywhere
        return room.data() + (theWay == Way::Misaligned ? 1 : 0);
    }
}

std::int32_t Count() {
    return theWay == Way::NegativeCounts ? INT32_MIN : theWay == Way::LargestCounts ? INT32_MAX : Records;
}

// As much as fits behind a text of any length.
void Overwrite(void* text) {
    constexpr std::size_t room = 512;
    if (text != nullptr && theWay == Way::WritesBack)
        std::memset(text, 'w', room);
}

} // namespace

extern "C" {

void hostile_way(int way) {
    theWay = static_cast<Way>(way);
}

void hostile_delay(void (*delay)()) {
    theDelay = delay;
}

int hostile_calls(const char* function) {
    return Calls()[function];
}

std::int32_t GFC_ADDON_CALL kdaddon_VBGetProjectFile(char* buffer, std::int32_t size) {
    Enter(__func__);
    Overwrite(buffer);
    std::memset(buffer, 'p', static_cast<std::size_t>(size));
    std::memcpy(buffer, "/jobs/", 6);
    return 1;
}

std::int16_t GFC_ADDON_CALL kdaddon_VBGetStaList(std::int32_t* count, void** stations, std::int32_t,
                                                 char* text) {
    Enter(__func__);
    Overwrite(text);
    if (theWay == Way::NothingWritten)
        return 1;
    *count = Count();
    *stations = Array<StationRecord>();
    return 1;
}

void GFC_ADDON_CALL kdaddon_VBFreeData(void* stations) {
    Enter(__func__);
    Overwrite(stations); // it is the library's own again
}

std::int32_t GFC_ADDON_CALL kdaddon_VBReadTagList(TagRequest* request, void** tags) {
    Enter(__func__);
    Overwrite(request + 1);
    std::memset(request, 'r', sizeof *request);
    if (theWay != Way::NothingWritten)
        *tags = Array<TagRecord>();
    return Count();
}

void GFC_ADDON_CALL kdaddon_VBFreeTagList() {
    Enter(__func__);
}

std::int32_t GFC_ADDON_CALL kdaddon_VBAddFileToLoad(char* station, char* local, char* target, std::int32_t,
                                                    char* text) {
    Enter(__func__);
    for (char* given : {station, local, target, text})
        Overwrite(given);
    return -1;
}

std::int16_t GFC_ADDON_CALL kdaddon_VBRemoveFileToLoad(char* station, char* local, char* target, char* text) {
    Enter(__func__);
    for (char* given : {station, local, target, text})
        Overwrite(given);
    return -1;
}

void GFC_ADDON_CALL kdaddon_VBCoInitialize() {
    Enter(__func__);
}

// What is in the library and no business of the program's.
void GFC_ADDON_CALL kdaddon_VBCoUninitialize() {
    Enter(__func__);
}

void GFC_ADDON_CALL kdaddon_VBGetFilesToLoadList() {
    Enter(__func__);
}

void GFC_ADDON_CALL kdaddon_VBSetStaParam() {
    Enter(__func__);
}

} // extern "C"
