// Whether a compositor runs on X11: it is the owner of a selection of its screen's name. Qt hands out the connection
// but asks no such question, so two functions of the X library that Qt itself has loaded are looked up at run time.

#include "ui/desktop.h"

#include <QGuiApplication>
#include <QLibrary>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace desktop {

namespace {

constexpr char kSelection[] = "_NET_WM_CM_S0";

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

using Connection = void;
using InternAtom = Cookie (*)(Connection*, uint8_t onlyIfExists, uint16_t length, const char* name);
using InternAtomReply = AtomReply* (*)(Connection*, Cookie, void** error);
using GetOwner = Cookie (*)(Connection*, uint32_t selection);
using GetOwnerReply = OwnerReply* (*)(Connection*, Cookie, void** error);

/// What malloc gave on the other side of a C interface.
template <typename T>
using CPointer = std::unique_ptr<T, decltype(&std::free)>;

struct Xcb {
  InternAtom internAtom = nullptr;
  InternAtomReply internAtomReply = nullptr;
  GetOwner getOwner = nullptr;
  GetOwnerReply getOwnerReply = nullptr;

  Xcb() {
    QLibrary library(QStringLiteral("xcb"), 1);
    internAtom = reinterpret_cast<InternAtom>(library.resolve("xcb_intern_atom"));
    internAtomReply = reinterpret_cast<InternAtomReply>(library.resolve("xcb_intern_atom_reply"));
    getOwner = reinterpret_cast<GetOwner>(library.resolve("xcb_get_selection_owner"));
    getOwnerReply = reinterpret_cast<GetOwnerReply>(library.resolve("xcb_get_selection_owner_reply"));
  }
  [[nodiscard]] bool isComplete() const { return internAtom && internAtomReply && getOwner && getOwnerReply; }
};

bool hasOwner(const Xcb& xcb, Connection* connection) {
  const Cookie asked = xcb.internAtom(connection, 1, sizeof kSelection - 1, kSelection);
  const CPointer<AtomReply> atom(xcb.internAtomReply(connection, asked, nullptr), &std::free);
  if (!atom || atom->atom == 0) return false;
  const Cookie askedOwner = xcb.getOwner(connection, atom->atom);
  const CPointer<OwnerReply> owner(xcb.getOwnerReply(connection, askedOwner, nullptr), &std::free);
  return owner && owner->owner != 0;
}

} // namespace

bool hasCompositor() {
#if QT_CONFIG(xcb)
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (!x11 || !x11->connection()) return true;
  static const Xcb xcb;
  return !xcb.isComplete() || hasOwner(xcb, x11->connection());
#else
  return true;
#endif
}

} // namespace desktop
