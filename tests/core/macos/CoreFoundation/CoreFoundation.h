/// A stand-in for what the sources for macOS call of that framework, so that they build and run elsewhere. The test
/// that includes it tells what the calls answer.
#pragma once

#include <cstdint>

using UInt8 = std::uint8_t;
using SInt64 = std::int64_t;
using Boolean = unsigned char;
using CFIndex = long;
using CFTypeRef = const void*;
using CFAllocatorRef = const struct StandInAllocator*;
using CFURLRef = const struct StandInUrl*;
using CFNumberRef = const struct StandInNumber*;
using CFStringRef = const struct StandInString*;
using CFErrorRef = struct StandInError*;
enum CFNumberType { kCFNumberSInt64Type = 4 };

extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFStringRef kCFURLVolumeAvailableCapacityForImportantUsageKey;

CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef allocator, const UInt8* path, CFIndex length,
                                                 Boolean isFolder);
Boolean CFURLCopyResourcePropertyForKey(CFURLRef url, CFStringRef key, void* value, CFErrorRef* error);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value);
void CFRelease(CFTypeRef object);
