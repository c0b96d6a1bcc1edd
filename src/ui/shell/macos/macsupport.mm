#include "ui/shell/macsupport.h"

#include "ui/shell/macos/statusitem.h"

#import <AppKit/AppKit.h>
#import <objc/runtime.h>

#include <utility>

namespace macsupport {
namespace {

using Reopen = BOOL (*)(id self, SEL command, NSApplication* application, BOOL hasVisibleWindows);
using BeganTracking = void (*)(id self, SEL command, NSNotification* notification);

// For the life of the process, as what they replace is replaced for good.
std::function<void()> dockHandler;
bool reopenIsReplaced = false;
Reopen previousReopen = nullptr;
BeganTracking previousBeganTracking = nullptr;

BOOL reopen(id self, SEL command, NSApplication* application, BOOL hasVisibleWindows) {
  if (dockHandler) dockHandler();
  return previousReopen ? previousReopen(self, command, application, hasVisibleWindows) : YES;
}

void beganTracking(id self, SEL command, NSNotification* notification) {
  NSEvent* event = [NSApp currentEvent];
  if (event && isMouseButton([event type])) previousBeganTracking(self, command, notification);
}

} // namespace

void onDockReopen(std::function<void()> handler) {
  const id delegate = [NSApp delegate];
  if (!delegate) return;
  dockHandler = std::move(handler);
  if (reopenIsReplaced) return;
  // What the method gives and takes: a truth value, the object, the selector, an object, a truth value.
  NSString* types = [NSString stringWithFormat:@"%s%s%s%s%s", "c", "@", ":", "@", "c"];
  previousReopen = reinterpret_cast<Reopen>(
      class_replaceMethod([delegate class], @selector(applicationShouldHandleReopen:hasVisibleWindows:),
                          reinterpret_cast<IMP>(reopen), [types UTF8String]));
  reopenIsReplaced = true;
}

bool guardStatusItemMenu() {
  NSProcessInfo* process = [NSProcessInfo processInfo];
  if (!process || !needsStatusItemGuard([process operatingSystemVersion].majorVersion) || previousBeganTracking)
    return true;
  // Both names are those of Qt's own plugin for the system.
  const Class delegate = NSClassFromString(@"QStatusItemDelegate");
  const Method method = class_getInstanceMethod(delegate, NSSelectorFromString(@"statusItemMenuBeganTracking:"));
  if (!method) return false;
  previousBeganTracking =
      reinterpret_cast<BeganTracking>(method_setImplementation(method, reinterpret_cast<IMP>(beganTracking)));
  return true;
}

} // namespace macsupport
