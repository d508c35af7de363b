#ifdef _WIN32
// Every call of the system by which a file is written made to fail, to do half of its work, and to be the
// last of its process. The calls of this program go through a table of addresses, in which others take their
// place.
#include "platform/Files.h"
#include "platform/windows/FileHandle.h"
#include "platform/windows/Wide.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <ostream>
#include <set>

namespace {

using namespace gfc::platform;
using gfc::platform::windows::Handle;
using gfc::platform::windows::Wide;
using gfc::test::TempFolder;

enum class Kind {
    Refused,      // not done, and said so
    DoneAndTold,  // done, and told as if it were not
    Half,         // half of it done, and told
    RefusedSince, // and whatever comes behind it
    Dies,         // the process is no more before it, behind it or halfway: whatever it would do then
    DiesAfter,    // leaves no trace
    DiesHalfway
};

struct FaultKind {
    const char* Name;
    Kind What;
    DWORD Error;
};

void PrintTo(const FaultKind& fault, std::ostream* out) {
    *out << fault.Name;
}

constexpr FaultKind Faults[] = {
    {"full_disk", Kind::Refused, ERROR_DISK_FULL},
    {"denied", Kind::Refused, ERROR_ACCESS_DENIED},
    {"touched_for_a_moment", Kind::Refused, ERROR_SHARING_VIOLATION},
    {"done_and_told", Kind::DoneAndTold, ERROR_GEN_FAILURE},
    {"half", Kind::Half, ERROR_DISK_FULL},
    {"gone_disk", Kind::RefusedSince, ERROR_GEN_FAILURE},
    {"killed", Kind::Dies, ERROR_GEN_FAILURE},
    {"killed_behind", Kind::DiesAfter, ERROR_GEN_FAILURE},
    {"killed_halfway", Kind::DiesHalfway, ERROR_GEN_FAILURE},
};

// The one trial that is going on; calls are counted while it is.
struct Trial {
    FaultKind Fault{};
    long At = 0;
    long Calls = 0;
    bool Going = false;
} trial;

enum class Fate { Done, Refused, Half, DoneAndTold };

Fate Next() {
    if (!trial.Going || ++trial.Calls < trial.At)
        return Fate::Done;
    if (trial.Calls > trial.At)
        return trial.Fault.What >= Kind::RefusedSince ? Fate::Refused : Fate::Done;
    switch (trial.Fault.What) {
    case Kind::DoneAndTold:
        return Fate::DoneAndTold;
    case Kind::Half:
    case Kind::DiesHalfway:
        return Fate::Half;
    case Kind::DiesAfter:
        return Fate::Done;
    default:
        return Fate::Refused;
    }
}

BOOL Undone(BOOL) {
    return FALSE;
}
DWORD Undone(DWORD) {
    return INVALID_FILE_ATTRIBUTES;
}
HANDLE Undone(HANDLE handle) {
    if (handle != nullptr && handle != INVALID_HANDLE_VALUE)
        ::CloseHandle(handle);
    return INVALID_HANDLE_VALUE;
}

// What stands in the place of the system's function of that number in the table below.
template <int Number, class Function>
struct Hook;
template <int Number, class Result, class... Arguments>
struct Hook<Number, Result(WINAPI*)(Arguments...)> {
    static inline Result(WINAPI* Real)(Arguments...) = nullptr;
    // Its half; gives the error that is told of it, or none for that of the trial.
    static inline std::function<DWORD(Arguments...)> Half;

    static Result WINAPI Call(Arguments... arguments) {
        const Fate fate = Next();
        if (fate == Fate::Done)
            return Real(arguments...);
        DWORD error = trial.Fault.Error;
        Result result{};
        if (fate == Fate::DoneAndTold)
            result = Real(arguments...);
        else if (const DWORD own = fate == Fate::Half && Half ? Half(arguments...) : 0)
            error = own;
        result = Undone(result);
        ::SetLastError(error);
        return result;
    }
};

// The place of the address of a function that this program calls; null if it calls none of that name.
void** PlaceOf(const char* function) {
    auto* const base = reinterpret_cast<char*>(::GetModuleHandleW(nullptr));
    const auto at = [base](auto offset) { return base + static_cast<std::size_t>(offset); };
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(at(dos->e_lfanew));
    const auto& imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* library = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(at(imports.VirtualAddress));
    for (; library->Name != 0; ++library) {
        const auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(at(library->OriginalFirstThunk));
        auto* place = reinterpret_cast<void**>(at(library->FirstThunk));
        for (; name->u1.AddressOfData != 0; ++name, ++place) {
            if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal))
                continue;
            const auto* named = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(at(name->u1.AddressOfData));
            if (std::strcmp(reinterpret_cast<const char*>(named->Name), function) == 0)
                return place;
        }
    }
    return nullptr;
}

template <int Number, class Function>
void Lay(const char* name, Function, decltype(Hook<Number, Function>::Half) half = {}) {
    void** const place = PlaceOf(name);
    ASSERT_NE(place, nullptr) << name;
    if (Hook<Number, Function>::Real != nullptr)
        return;
    DWORD before = 0;
    ASSERT_TRUE(::VirtualProtect(place, sizeof *place, PAGE_READWRITE, &before));
    Hook<Number, Function>::Real = reinterpret_cast<Function>(*place);
    *place = reinterpret_cast<void*>(&Hook<Number, Function>::Call);
    ::VirtualProtect(place, sizeof *place, before, &before);
    Hook<Number, Function>::Half = std::move(half);
}

DWORD WriteHalf(HANDLE file, const void* bytes, DWORD size, DWORD* written, OVERLAPPED* overlapped) {
    Hook<2, decltype(&::WriteFile)>::Real(file, bytes, size / 2, written, overlapped);
    return 0;
}

// As the system does it at its worst: the old file has its other name, and nothing has come to its place.
DWORD ReplaceHalf(const wchar_t* target, const wchar_t*, const wchar_t* aside, DWORD, void*, void*) {
    const bool moved = Hook<8, decltype(&::MoveFileExW)>::Real(target, aside, 0) != 0;
    return moved ? ERROR_UNABLE_TO_MOVE_REPLACEMENT_2 : ERROR_UNABLE_TO_REMOVE_REPLACED;
}

void LayAll() {
    Lay<0>("CreateFileW", &::CreateFileW);
    Lay<1>("ReadFile", &::ReadFile);
    Lay<2>("WriteFile", &::WriteFile, WriteHalf);
    Lay<3>("FlushFileBuffers", &::FlushFileBuffers);
    Lay<4>("SetEndOfFile", &::SetEndOfFile);
    Lay<5>("SetFilePointerEx", &::SetFilePointerEx);
    Lay<6>("GetFileSizeEx", &::GetFileSizeEx);
    Lay<7>("ReplaceFileW", &::ReplaceFileW, ReplaceHalf);
    Lay<8>("MoveFileExW", &::MoveFileExW);
    Lay<9>("DeleteFileW", &::DeleteFileW);
    Lay<10>("GetFileAttributesW", &::GetFileAttributesW);
    Lay<11>("FindFirstFileW", &::FindFirstFileW);
}

const std::string Old = "[S]\r\nk=old\r\nkept=1\r\n";
const std::string New = "[S]\r\nk=new and longer\r\n";

// What is done to "f.ini", which holds the old bytes, or is not there where it is to be a new file.
struct Operation {
    const char* Name;
    bool Stands; // before it
    bool Held;   // by another program, which lets others write
    std::function<bool(Files&, const TempFolder&)> Do;
};

void PrintTo(const Operation& operation, std::ostream* out) {
    *out << operation.Name;
}

bool ReplaceIt(Files& files, const TempFolder& folder) {
    return files.Replace(folder.Path("f.ini"), New);
}

const Operation Operations[] = {
    {"save", true, false, ReplaceIt},
    {"save_in_place", true, true, ReplaceIt},
    {"first_save", false, false, ReplaceIt},
    {"copy", false, false,
     [](Files& files, const TempFolder& folder) {
         return files.CopyNew(folder.Path("from.ini"), folder.Path("f.ini"));
     }},
};

class WindowsFaults : public testing::TestWithParam<std::tuple<Operation, FaultKind>> {
protected:
    WindowsFaults() { ::SetEnvironmentVariableW(L"LOCALAPPDATA", Wide(own_.Path()).c_str()); }
    ~WindowsFaults() override { ::SetEnvironmentVariableW(L"LOCALAPPDATA", before_.c_str()); }

    static const Operation& Its() { return std::get<0>(GetParam()); }
    static const FaultKind& Fault() { return std::get<1>(GetParam()); }

    static std::set<std::string> NamesIn(const TempFolder& folder) {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
            names.insert(entry.path().filename().string());
        return names;
    }

    // What the next access finds, and that the next save leaves nothing beside the file.
    static std::string Found(const TempFolder& folder) {
        const auto next = MakeFiles();
        const std::string path = folder.Path("f.ini");
        const auto found = next->Read(path);
        EXPECT_TRUE(next->Replace(path, "next")) << next->LastFailure();
        EXPECT_EQ(NamesIn(folder), (std::set<std::string>{"f.ini", "from.ini"}));
        return found.value_or("");
    }

    // False once the fault lies behind the last call.
    static bool Play(long at) {
        const TempFolder folder;
        folder.Put("from.ini", New);
        if (Its().Stands)
            folder.Put("f.ini", Old);
        bool done = false;
        std::string reason;
        {
            const Handle holder(Its().Held ? ::CreateFileW(Wide(folder.Path("f.ini")).c_str(), GENERIC_READ,
                                                           FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)
                                           : INVALID_HANDLE_VALUE);
            const auto files = MakeFiles();
            trial = {Fault(), at, 0, true};
            done = Its().Do(*files, folder);
            trial.Going = false;
            reason = files->LastFailure();
        }
        Judge(done, reason, Found(folder));
        return trial.Calls >= at;
    }

    static void Judge(bool done, const std::string& reason, const std::string& found) {
        const std::string before = Its().Stands ? Old : "";
        if (Fault().What >= Kind::Dies) {
            EXPECT_TRUE(found == before || found == New) << found;
        } else if (done) {
            EXPECT_EQ(found, New);
        } else {
            EXPECT_NE(reason, "");
            // A last step that was done all the same has put the new bytes there.
            const bool mayBeNew = Fault().What == Kind::DoneAndTold || Fault().What == Kind::RefusedSince;
            EXPECT_TRUE(found == before || (mayBeNew && found == New)) << found;
        }
    }

private:
    // The user's own folder, in which the record of a save in place may stand.
    TempFolder own_;
    std::wstring before_ = ::_wgetenv(L"LOCALAPPDATA");
};

TEST_P(WindowsFaults, leave_the_old_or_the_new_file) {
    ASSERT_NO_FATAL_FAILURE(LayAll());
    long at = 1;
    while (Play(at) && !HasFailure())
        ++at;
    EXPECT_FALSE(HasFailure()) << "call " << at;
    EXPECT_GT(at, 8) << "calls are seen";
}

INSTANTIATE_TEST_SUITE_P(Each, WindowsFaults,
                         testing::Combine(testing::ValuesIn(Operations), testing::ValuesIn(Faults)),
                         [](const auto& played) {
                             return std::string(std::get<0>(played.param).Name) + "_" +
                                    std::get<1>(played.param).Name;
                         });

} // namespace
#endif
