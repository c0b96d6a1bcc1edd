/// Owns a selection of the X server that a test runs on, as a compositor or a tray does.
#pragma once

#include <QByteArray>
#include <QLibrary>
#include <QString>

#include <cstdint>
#include <cstdlib>

/// As long as it lives. The few calls of the library that it takes are looked up, with its types as they are passed.
class SelectionOwner {
 public:
  /// @param announced  whether it is told to all who listen, as those do who serve others by their selection
  enum class Told { Nobody, Everybody };
  explicit SelectionOwner(const QByteArray& selection, Told told = Told::Nobody)
      : m_connection(resolve<void* (*)(const char*, int*)>("xcb_connect")(nullptr, nullptr)),
        m_root(rootWindow()),
        m_window(resolve<uint32_t (*)(void*)>("xcb_generate_id")(m_connection)) {
    const auto createWindow =
        resolve<Cookie (*)(void*, uint8_t, uint32_t, uint32_t, int16_t, int16_t, uint16_t, uint16_t, uint16_t, uint16_t,
                           uint32_t, uint32_t, const void*)>("xcb_create_window");
    const auto own = resolve<Cookie (*)(void*, uint32_t, uint32_t, uint32_t)>("xcb_set_selection_owner");
    const uint32_t name = atom(selection);
    createWindow(m_connection, 0, m_window, m_root, 0, 0, 1, 1, 0, 2 /* input only */, 0, 0, nullptr);
    own(m_connection, m_window, name, 0);
    if (told == Told::Everybody) announce(name);
    settle(name);
  }
  ~SelectionOwner() { resolve<void (*)(void*)>("xcb_disconnect")(m_connection); }
  SelectionOwner(const SelectionOwner&) = delete;
  SelectionOwner& operator=(const SelectionOwner&) = delete;

 private:
  struct Cookie {
    unsigned sequence;
  };
  struct Reply {
    uint8_t head[8];
    uint32_t value;
  };
  struct ClientMessage {
    uint8_t responseType = 33;
    uint8_t format = 32;
    uint16_t sequence = 0;
    uint32_t window = 0;
    uint32_t type = 0;
    uint32_t data[5] = {};
  };

  template <typename Function>
  Function resolve(const char* name) {
    return reinterpret_cast<Function>(m_library.resolve(name));
  }

  uint32_t rootWindow() {
    struct Iterator {
      uint32_t* data;
      int rest;
      int index;
    };
    const auto setup = resolve<void* (*)(void*)>("xcb_get_setup");
    const auto roots = resolve<Iterator (*)(void*)>("xcb_setup_roots_iterator");
    return *roots(setup(m_connection)).data; // a screen begins with its root
  }

  uint32_t atom(const QByteArray& name) {
    const auto intern = resolve<Cookie (*)(void*, uint8_t, uint16_t, const char*)>("xcb_intern_atom");
    const auto reply = resolve<Reply* (*)(void*, Cookie, void**)>("xcb_intern_atom_reply");
    Reply* answer = reply(m_connection, intern(m_connection, 0, uint16_t(name.size()), name.constData()), nullptr);
    const uint32_t value = answer->value;
    std::free(answer);
    return value;
  }

  void announce(uint32_t selection) {
    constexpr uint32_t kStructureNotify = 1 << 17;
    const auto send = resolve<Cookie (*)(void*, uint8_t, uint32_t, uint32_t, const char*)>("xcb_send_event");
    ClientMessage message;
    message.window = m_root;
    message.type = atom("MANAGER");
    message.data[1] = selection;
    message.data[2] = m_window;
    send(m_connection, 0, m_root, kStructureNotify, reinterpret_cast<const char*>(&message));
  }

  /// Returns when the server has done it.
  void settle(uint32_t selection) {
    const auto getOwner = resolve<Cookie (*)(void*, uint32_t)>("xcb_get_selection_owner");
    const auto reply = resolve<Reply* (*)(void*, Cookie, void**)>("xcb_get_selection_owner_reply");
    std::free(reply(m_connection, getOwner(m_connection, selection), nullptr));
  }

  QLibrary m_library{QStringLiteral("xcb"), 1};
  void* m_connection;
  uint32_t m_root;
  uint32_t m_window;
};
