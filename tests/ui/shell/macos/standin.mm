// The interventions in the application object, run for real on a stand-in of it. One way at a time, as none is ever
// undone: standin WAY. Ends with 0 if all was as it must be.
#include "ui/shell/macsupport.h"

#import <AppKit/AppKit.h>

#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

// What the stand-ins answer.
id theDelegate = nil;
NSEvent* theEvent = nil;
NSUInteger eventType = 0;
NSInteger majorVersion = 27;
bool hasItemDelegate = true;
// What they were asked.
int ownReopens = 0;
int ownTrackings = 0;

int failures = 0;
void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "not so: %s\n", what);
  ++failures;
}

char formatted[64];

} // namespace

@implementation NSString
+ (NSString*)stringWithFormat:(NSString*)format, ... {
  va_list values;
  va_start(values, format);
  std::vsnprintf(formatted, sizeof formatted, [format UTF8String], values);
  va_end(values);
  static NSString* result = class_createInstance(objc_getClass("NSString"), 0);
  return result;
}
- (const char*)UTF8String {
  return formatted;
}
@end

@implementation NSConstantString
- (const char*)UTF8String {
  return bytes;
}
@end

@implementation NSNotification
@end

@implementation NSEvent
- (NSUInteger)type {
  return eventType;
}
@end

@implementation NSApplication
- (id)delegate {
  return theDelegate;
}
- (NSEvent*)currentEvent {
  return theEvent;
}
@end

@implementation NSProcessInfo
+ (NSProcessInfo*)processInfo {
  static NSProcessInfo* info = class_createInstance(objc_getClass("NSProcessInfo"), 0);
  return info;
}
- (NSOperatingSystemVersion)operatingSystemVersion {
  return {majorVersion, 0, 0};
}
@end

NSApplication* NSApp = nil;

Class NSClassFromString(NSString* name) { return hasItemDelegate ? objc_getClass([name UTF8String]) : Nil; }
SEL NSSelectorFromString(NSString* name) { return sel_registerName([name UTF8String]); }

/// A delegate that handles the click itself too.
@interface HandlingDelegate : Object
@end
@implementation HandlingDelegate
- (BOOL)applicationShouldHandleReopen:(NSApplication*)application hasVisibleWindows:(BOOL)visible {
  ++ownReopens;
  check(application == NSApp && visible == YES, "what was told is passed on");
  return NO;
}
@end

/// One that doesn't.
@interface PlainDelegate : Object
@end
@implementation PlainDelegate
@end

@interface QStatusItemDelegate : Object
- (void)statusItemMenuBeganTracking:(NSNotification*)notification;
@end
@implementation QStatusItemDelegate
- (void)statusItemMenuBeganTracking:(NSNotification*)notification {
  check(notification == nil, "what was told is passed on");
  ++ownTrackings;
}
@end

namespace {

id make(const char* kind) { return class_createInstance(objc_getClass(kind), 0); }
BOOL clickTheDock() { return [theDelegate applicationShouldHandleReopen:NSApp hasVisibleWindows:YES]; }

void reopen() {
  int first = 0;
  int second = 0;
  macsupport::onDockReopen([&] { ++first; });
  theDelegate = make("HandlingDelegate");
  check(clickTheDock() == NO && ownReopens == 1 && first == 0, "without a delegate the handler isn't kept");
  macsupport::onDockReopen([&] { ++first; });
  check(clickTheDock() == NO && ownReopens == 2 && first == 1, "the handler is called, and the delegate answers");
  macsupport::onDockReopen([&] { ++second; });
  check(clickTheDock() == NO && ownReopens == 3, "the method is replaced once");
  check(first == 1 && second == 1, "the later handler replaces the earlier one");
  macsupport::onDockReopen({});
  check(clickTheDock() == NO && ownReopens == 4 && second == 1, "there may be none");
}

void reopenAlone() {
  int called = 0;
  theDelegate = make("PlainDelegate");
  macsupport::onDockReopen([&] { ++called; });
  check(clickTheDock() == YES && called == 1, "without an answer of the delegate's the answer is yes");
  const Method method = class_getInstanceMethod(objc_getClass("PlainDelegate"),
                                                @selector(applicationShouldHandleReopen:hasVisibleWindows:));
  check(std::strcmp(method_getTypeEncoding(method), "c@:@c") == 0, "the method's types");
}

void guard() {
  QStatusItemDelegate* item = make("QStatusItemDelegate");
  check(macsupport::guardStatusItemMenu(), "there is a method to guard");
  check(macsupport::guardStatusItemMenu(), "it is guarded already");
  [item statusItemMenuBeganTracking:nil];
  check(ownTrackings == 0, "without an event nothing opens");
  theEvent = make("NSEvent");
  for (const NSUInteger type : {0UL, 5UL, 10UL, 22UL, 24UL, 27UL}) {
    eventType = type;
    [item statusItemMenuBeganTracking:nil];
  }
  check(ownTrackings == 0, "other events open nothing");
  for (const NSUInteger type : {1UL, 2UL, 3UL, 4UL, 25UL, 26UL}) {
    eventType = type;
    [item statusItemMenuBeganTracking:nil];
  }
  check(ownTrackings == 6, "the buttons of the mouse do, once each");
}

void guardOldSystem() {
  majorVersion = 26;
  check(macsupport::guardStatusItemMenu(), "there is nothing to do");
  [make("QStatusItemDelegate") statusItemMenuBeganTracking:nil];
  check(ownTrackings == 1, "the method is as it was");
}

void guardMissing() {
  hasItemDelegate = false;
  check(!macsupport::guardStatusItemMenu(), "there is no such method");
}

struct Way {
  const char* name;
  void (*go)();
};
constexpr Way kWays[] = {{"reopen", reopen},
                         {"reopen-alone", reopenAlone},
                         {"guard", guard},
                         {"guard-old-system", guardOldSystem},
                         {"guard-missing", guardMissing}};

} // namespace

int main(int argc, char** argv) {
  NSApp = make("NSApplication");
  for (const Way& way : kWays)
    if (argc == 2 && std::strcmp(argv[1], way.name) == 0) {
      way.go();
      return failures == 0 ? 0 : 1;
    }
  std::fputs("usage: standin WAY\n", stderr);
  return 2;
}
