/// A stand-in for the frameless window library, which writes down what it is told.
#pragma once

#include <QObject>
#include <QRect>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace QWK {

class WidgetWindowAgent : public QObject {
 public:
  using QObject::QObject;

  static inline QStringList told; ///< the calls, in their order
  static inline QWidget* titleBar = nullptr;
  static inline QWidget* visible = nullptr;
  static inline QRect buttons; ///< what the callback answers

  bool setup(QWidget* window) {
    told << (window == parent() ? QStringLiteral("setup") : QStringLiteral("setup of another"));
    return true;
  }
  void setTitleBar(QWidget* bar) {
    told << QStringLiteral("title bar");
    titleBar = bar;
  }
  void setHitTestVisible(QWidget* widget, bool on) {
    told << QStringLiteral("hit test");
    visible = on ? widget : nullptr;
  }
  void setSystemButtonAreaCallback(const std::function<QRect(const QSize&)>& area) {
    told << QStringLiteral("buttons");
    buttons = area(QSize(1, 1));
  }
};

} // namespace QWK
