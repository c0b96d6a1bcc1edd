/// A stand-in for what the sources for macOS call of that framework, so that they build and run on another system's
/// Objective-C runtime. standin.mm has what stands behind it.
#pragma once

#import <objc/Object.h>
#import <objc/runtime.h>

using NSInteger = long;
using NSUInteger = unsigned long;
struct NSOperatingSystemVersion {
  NSInteger majorVersion;
  NSInteger minorVersion;
  NSInteger patchVersion;
};

@interface NSString : Object
+ (NSString*)stringWithFormat:(NSString*)format, ...;
- (const char*)UTF8String;
@end

/// What a text in the source is, as this runtime lays it out.
@interface NSConstantString : NSString {
  char* bytes;
  unsigned int length;
}
@end

@interface NSNotification : Object
@end

@interface NSEvent : Object
- (NSUInteger)type;
@end

@interface NSApplication : Object
- (id)delegate;
- (NSEvent*)currentEvent;
@end
extern NSApplication* NSApp;

@interface NSProcessInfo : Object
+ (NSProcessInfo*)processInfo;
- (NSOperatingSystemVersion)operatingSystemVersion;
@end

/// What the application's delegate may know.
@interface Object (ApplicationDelegate)
- (BOOL)applicationShouldHandleReopen:(NSApplication*)application hasVisibleWindows:(BOOL)visible;
@end

Class NSClassFromString(NSString* name);
SEL NSSelectorFromString(NSString* name);
