/// The 16 ms heartbeat of a small animation. It beats only while its widget is shown, and goes on from there.
#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace ui {

/// Owned by the widget that it animates.
class Ticker : public QObject {
 public:
  static constexpr int kIntervalMs = 16;
  /// What a beat is for: sweeps and orbits stand still when the desktop asks for reduced motion, values still move.
  enum class Motion { Decorative, Value };

  /// @param tick  called on every beat, on the user-interface thread; it may delete its widget later, but not at once
  Ticker(QWidget* widget, std::function<void()> tick, Motion motion = Motion::Decorative);

  /// Wants beats from now on, or no more. Beats come only while the widget is visible.
  void setRunning(bool on);
  /// Whether beats are wanted, shown or not.
  [[nodiscard]] bool isRunning() const { return m_wanted; }
  /// Whether beats really come now.
  [[nodiscard]] bool isBeating() const { return m_timer.isActive(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void watchWindow();
  void update();

  QWidget* m_widget;
  QPointer<QWidget> m_window; ///< the window that the widget was last shown in
  std::function<void()> m_tick;
  Motion m_motion;
  bool m_wanted = false;
  QBasicTimer m_timer;
};

} // namespace ui
