#include "gallery/Snapshot.h"

#include "ui/Theme.h"

#include <QPixmap>

namespace gallery {

Snapshot::Snapshot(std::function<QPixmap()> take) : m_take(std::move(take)) {
  connect(&Theme::get(), &Theme::changed, this, [this] { setPixmap(m_take()); });
  setPixmap(m_take());
}

} // namespace gallery
