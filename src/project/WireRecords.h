// The records that cross the boundary of the add-on library, byte for byte. Text is 8-bit in the machine's
// code page, NUL padded and without a closing NUL where it fills its field; numbers are little-endian and
// signed.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace gfc::project {

struct StationRecord {
    char Name[80];
    char Type[80];
    char Address[20];
    char Reserved1[20];
    std::int32_t Reserved2;
    std::int32_t Reserved3;
    std::int32_t SerialNumber;
};

struct TagRequest {
    char Station[80];
    char ProjectFile[260];
    char Reserved[256];
    std::int32_t Flags;
};

struct TagRecord {
    char TagName[40];
    std::int32_t RegAddr;
    char RegType[10];
    char Reserved1[8];
    char Reserved2[1];
    char Padding1[1];
    std::int32_t Reserved3;
    std::int32_t Reserved4;
    std::int32_t Reserved5;
    std::int32_t Reserved6;
    char Reserved7[10];
    char Reserved8[20];
    char Reserved9[20];
    char Reserved10[40];
    char ModuleName[40];
    char ModuleType[80];
    char Reserved11[80];
    char Padding2[2];
};

// Every number stands on a multiple of four, so that the natural layout is the packed one and no field needs
// care. An array that the library hands over may still start anywhere: copy a record out before reading it.

static_assert(std::endian::native == std::endian::little,
              "the records are exchanged as they stand in memory");

static_assert(std::is_standard_layout_v<StationRecord> && std::is_trivially_copyable_v<StationRecord>);
static_assert(sizeof(StationRecord) == 212);
static_assert(offsetof(StationRecord, Name) == 0);
static_assert(offsetof(StationRecord, Type) == 80);
static_assert(offsetof(StationRecord, Address) == 160);
static_assert(offsetof(StationRecord, Reserved1) == 180);
static_assert(offsetof(StationRecord, Reserved2) == 200);
static_assert(offsetof(StationRecord, Reserved3) == 204);
static_assert(offsetof(StationRecord, SerialNumber) == 208);

static_assert(std::is_standard_layout_v<TagRequest> && std::is_trivially_copyable_v<TagRequest>);
static_assert(sizeof(TagRequest) == 600);
static_assert(offsetof(TagRequest, Station) == 0);
static_assert(offsetof(TagRequest, ProjectFile) == 80);
static_assert(offsetof(TagRequest, Reserved) == 340);
static_assert(offsetof(TagRequest, Flags) == 596);

static_assert(std::is_standard_layout_v<TagRecord> && std::is_trivially_copyable_v<TagRecord>);
static_assert(sizeof(TagRecord) == 372);
static_assert(offsetof(TagRecord, TagName) == 0);
static_assert(offsetof(TagRecord, RegAddr) == 40);
static_assert(offsetof(TagRecord, RegType) == 44);
static_assert(offsetof(TagRecord, Reserved1) == 54);
static_assert(offsetof(TagRecord, Reserved2) == 62);
static_assert(offsetof(TagRecord, Reserved3) == 64);
static_assert(offsetof(TagRecord, Reserved4) == 68);
static_assert(offsetof(TagRecord, Reserved5) == 72);
static_assert(offsetof(TagRecord, Reserved6) == 76);
static_assert(offsetof(TagRecord, Reserved7) == 80);
static_assert(offsetof(TagRecord, Reserved8) == 90);
static_assert(offsetof(TagRecord, Reserved9) == 110);
static_assert(offsetof(TagRecord, Reserved10) == 130);
static_assert(offsetof(TagRecord, ModuleName) == 170);
static_assert(offsetof(TagRecord, ModuleType) == 210);
static_assert(offsetof(TagRecord, Reserved11) == 290);
static_assert(offsetof(TagRecord, Padding2) == 370);

} // namespace gfc::project
