/// A picture of what opens in a window of its own: a tool tip, a menu, a list.
#pragma once

#include <QLabel>

#include <functional>

namespace gallery {

/// Taken again whenever the look changes.
class Snapshot : public QLabel {
  Q_OBJECT

 public:
  /// @param take  opens, grabs and closes the window
  explicit Snapshot(std::function<QPixmap()> take);

 private:
  std::function<QPixmap()> m_take;
};

} // namespace gallery
