// Qt hands out its connection to the X server, so a few functions of the X library that Qt itself has loaded are looked
// up at run time. Types and messages are those of the X11 protocol and of the extended window manager hints.

#include "ui/linux/x11.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QLibrary>
#include <QObject>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>

namespace x11 {

#if QT_CONFIG(xcb)

namespace {

// The library's own types, as its protocol lays them down.
struct Cookie {
  unsigned sequence;
};
struct AtomReply {
  uint8_t responseType;
  uint8_t pad;
  uint16_t sequence;
  uint32_t length;
  uint32_t atom;
};
struct OwnerReply {
  uint8_t responseType;
  uint8_t pad;
  uint16_t sequence;
  uint32_t length;
  uint32_t owner;
};
struct Screen {
  uint32_t root; // and more
};
struct ClientMessage {
  uint8_t responseType;
  uint8_t format;
  uint16_t sequence;
  uint32_t window;
  uint32_t type;
  uint32_t data[5];
};
struct DestroyNotify {
  uint8_t responseType;
  uint8_t pad;
  uint16_t sequence;
  uint32_t event;
  uint32_t window;
};
struct ScreenIterator {
  Screen* data;
  int rest;
  int index;
};

using Connection = void;
using Setup = void;
struct PropertyReply;
using InternAtom = Cookie (*)(Connection*, uint8_t onlyIfExists, uint16_t length, const char* name);
using InternAtomReply = AtomReply* (*)(Connection*, Cookie, void** error);
using GetOwner = Cookie (*)(Connection*, uint32_t selection);
using GetOwnerReply = OwnerReply* (*)(Connection*, Cookie, void** error);
using GetSetup = const Setup* (*)(Connection*);
using Screens = ScreenIterator (*)(const Setup*);
using GetProperty = Cookie (*)(Connection*, uint8_t remove, uint32_t window, uint32_t property, uint32_t type,
                               uint32_t offset, uint32_t length);
using GetPropertyReply = PropertyReply* (*)(Connection*, Cookie, void** error);
using PropertyValue = void* (*)(const PropertyReply*);
using PropertyLength = int (*)(const PropertyReply*);

constexpr uint32_t kTypeAtom = 4; // predefined by the protocol
constexpr uint8_t kDestroyNotify = 17;
constexpr uint8_t kClientMessage = 33;
constexpr uint8_t kResponseType = 0x7f;      // without the bit of what another program sent
constexpr uint32_t kMostProtocols = 1 << 12; // in atoms; window managers list about a hundred

/// What malloc gave on the other side of a C interface.
template <typename T>
using CPointer = std::unique_ptr<T, decltype(&std::free)>;

struct Xcb {
  InternAtom internAtom = nullptr;
  InternAtomReply internAtomReply = nullptr;
  GetOwner getOwner = nullptr;
  GetOwnerReply getOwnerReply = nullptr;
  GetSetup getSetup = nullptr;
  Screens screens = nullptr;
  GetProperty getProperty = nullptr;
  GetPropertyReply getPropertyReply = nullptr;
  PropertyValue propertyValue = nullptr;
  PropertyLength propertyLength = nullptr;
  bool complete = true;

  Xcb() {
    find(&internAtom, "xcb_intern_atom");
    find(&internAtomReply, "xcb_intern_atom_reply");
    find(&getOwner, "xcb_get_selection_owner");
    find(&getOwnerReply, "xcb_get_selection_owner_reply");
    find(&getSetup, "xcb_get_setup");
    find(&screens, "xcb_setup_roots_iterator");
    find(&getProperty, "xcb_get_property");
    find(&getPropertyReply, "xcb_get_property_reply");
    find(&propertyValue, "xcb_get_property_value");
    find(&propertyLength, "xcb_get_property_value_length");
  }

 private:
  template <typename Function>
  void find(Function* function, const char* name) {
    static QLibrary library(QStringLiteral("xcb"), 1);
    *function = reinterpret_cast<Function>(library.resolve(name));
    complete = complete && *function;
  }
};

const Xcb& xcb() {
  static const Xcb functions;
  return functions;
}

/// Null off X11, and where the library isn't as we know it.
Connection* connection() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 && xcb().complete ? x11->connection() : nullptr;
}

enum class Unknown { IsNone, IsMade };

/// 0 where nobody has ever spoken of this name, unless it is to be made.
uint32_t atomOf(const char* name, Unknown unknown = Unknown::IsNone) {
  const uint8_t onlyIfExists = unknown == Unknown::IsNone ? 1 : 0;
  const Cookie asked = xcb().internAtom(connection(), onlyIfExists, uint16_t(std::strlen(name)), name);
  const CPointer<AtomReply> atom(xcb().internAtomReply(connection(), asked, nullptr), &std::free);
  return atom ? atom->atom : 0;
}

/// The owner's window; 0 if there is none.
uint32_t ownerOf(uint32_t selection) {
  if (selection == 0) return 0;
  const Cookie asked = xcb().getOwner(connection(), selection);
  const CPointer<OwnerReply> owner(xcb().getOwnerReply(connection(), asked, nullptr), &std::free);
  return owner ? owner->owner : 0;
}

/// Who takes such a selection tells all who listen to the root window, as Qt does.
class SelectionWatch : public QObject, public QAbstractNativeEventFilter {
 public:
  SelectionWatch(QObject* parent, const char* selection, std::function<void()> changed)
      : QObject(parent),
        m_manager(atomOf("MANAGER", Unknown::IsMade)),
        m_selection(atomOf(selection, Unknown::IsMade)),
        m_owner(ownerOf(m_selection)),
        m_changed(std::move(changed)) {
    qGuiApp->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray& kind, void* event, qintptr* /*result*/) override {
    if (kind == "xcb_generic_event_t" && concernsUs(event))
      QMetaObject::invokeMethod(
          this, [this] { m_changed(); }, Qt::QueuedConnection); // after Qt has seen it too
    return false;
  }

 private:
  bool concernsUs(const void* event) {
    const uint8_t type = *static_cast<const uint8_t*>(event) & kResponseType;
    if (type == kDestroyNotify) return m_owner != 0 && static_cast<const DestroyNotify*>(event)->window == m_owner;
    if (type != kClientMessage) return false;
    const auto* message = static_cast<const ClientMessage*>(event);
    if (message->type != m_manager || message->data[1] != m_selection) return false;
    m_owner = message->data[2];
    return true;
  }

  const uint32_t m_manager;
  const uint32_t m_selection;
  uint32_t m_owner;
  std::function<void()> m_changed;
};

} // namespace

bool isUsed() { return connection(); }

bool hasOwner(const char* selection) { return connection() && ownerOf(atomOf(selection)) != 0; }

void watchSelection(QObject* context, const char* selection, std::function<void()> changed) {
  if (connection()) new SelectionWatch(context, selection, std::move(changed));
}

bool managerSupports(const char* protocol) {
  if (!connection()) return false;
  const uint32_t wanted = atomOf(protocol);
  const uint32_t list = atomOf("_NET_SUPPORTED");
  if (wanted == 0 || list == 0) return false;
  const uint32_t root = xcb().screens(xcb().getSetup(connection())).data->root;
  const Cookie asked = xcb().getProperty(connection(), 0, root, list, kTypeAtom, 0, kMostProtocols);
  const CPointer<PropertyReply> reply(xcb().getPropertyReply(connection(), asked, nullptr), &std::free);
  if (!reply) return false;
  const std::span supported(static_cast<const uint32_t*>(xcb().propertyValue(reply.get())),
                            size_t(xcb().propertyLength(reply.get())) / sizeof(uint32_t));
  return std::find(supported.begin(), supported.end(), wanted) != supported.end();
}

#else

bool isUsed() { return false; }
bool hasOwner(const char* /*selection*/) { return false; }
void watchSelection(QObject* /*context*/, const char* /*selection*/, std::function<void()> /*changed*/) {}
bool managerSupports(const char* /*protocol*/) { return false; }

#endif

} // namespace x11
