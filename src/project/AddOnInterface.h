// The C interface of the add-on library of the I/O Workshop: what a library must export, and how it is
// called.
#pragma once

#include "project/WireRecords.h"

#include <array>
#include <cstdint>
#include <string_view>

// 32-bit Windows alone has more than one convention, and there the library uses this one. A library of the
// tests may have been given another one.
#if defined(GFC_ADDON_CALL)
#elif defined(_WIN32) && !defined(_WIN64)
#define GFC_ADDON_CALL __stdcall
#else
#define GFC_ADDON_CALL
#endif

namespace gfc::project {

/// Stands in memory that may be written to, with room behind it; in which form texts cross is said here and
/// in InOutText alone.
using AddOnText = char*;

extern "C" {

/// Non-zero on success; `buffer` of `size` bytes then holds the path of the open project, NUL padded.
/// All NUL when no project is open.
using AddOnGetProjectFile = std::int32_t(GFC_ADDON_CALL*)(char* buffer, std::int32_t size);

/// 0 on failure. `stations` points to `count` StationRecord that stay valid until AddOnFreeData.
/// `one` is 1 and `text` is empty.
using AddOnGetStaList = std::int16_t(GFC_ADDON_CALL*)(std::int32_t* count, void** stations, std::int32_t one,
                                                      AddOnText text);
using AddOnFreeData = void(GFC_ADDON_CALL*)(void* stations);

/// Number of tags, 0 or less when there are none. `tags` points to TagRecord that stay valid until
/// AddOnFreeTagList.
using AddOnReadTagList = std::int32_t(GFC_ADDON_CALL*)(TagRequest* request, void** tags);
using AddOnFreeTagList = void(GFC_ADDON_CALL*)();

/// `local` is a path of this machine, `target` one of the station, `flag` is -1, `text` is empty.
using AddOnAddFileToLoad = std::int32_t(GFC_ADDON_CALL*)(AddOnText station, AddOnText local, AddOnText target,
                                                         std::int32_t flag, AddOnText text);
using AddOnRemoveFileToLoad = std::int16_t(GFC_ADDON_CALL*)(AddOnText station, AddOnText local,
                                                            AddOnText target, AddOnText text);

using AddOnCoInitialize = void(GFC_ADDON_CALL*)();
using AddOnCoUninitialize = void(GFC_ADDON_CALL*)();

} // extern "C"

struct AddOnFunction {
    std::string_view Name;
    bool Called;    ///< false: the library has it, and nothing here ever calls it
    int StackBytes; ///< of its arguments where addresses have 32 bits; -1 where they are not known
};

// clang-format off
inline constexpr std::array<AddOnFunction, 11> AddOnFunctions = {{
    {"kdaddon_VBGetProjectFile",      true,    8},
    {"kdaddon_VBGetStaList",          true,   16},
    {"kdaddon_VBFreeData",            true,    4},
    {"kdaddon_VBReadTagList",         true,    8},
    {"kdaddon_VBFreeTagList",         true,    0},
    {"kdaddon_VBAddFileToLoad",       true,   20},
    {"kdaddon_VBRemoveFileToLoad",    true,   16},
    {"kdaddon_VBCoInitialize",        true,    0},
    {"kdaddon_VBCoUninitialize",      false,   0},
    {"kdaddon_VBGetFilesToLoadList",  false,  -1},
    {"kdaddon_VBSetStaParam",         false,  -1},
}};
// clang-format on

} // namespace gfc::project
