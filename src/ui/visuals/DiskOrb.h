/// The round picture of the system disk, with a button in its middle.
#pragma once

#include "ui/accessible.h"
#include "ui/visuals/DiskOrbLayout.h"

#include <QWidget>

namespace ui {

class KeyboardFocus;

/// The ring shows how full the disk is, and what of it can be cleaned; the core is the only part that reacts. Space and
/// Enter do what a click on it does.
class DiskOrb : public QWidget, public AccessibleButton, public AccessibleValue {
  Q_OBJECT

 public:
  explicit DiskOrb(QWidget* parent = nullptr);

  /// Bytes. A total below 1 is taken for 1; used and cleanable are cut to what the figure before them allows.
  void setDisk(qint64 total, qint64 used, qint64 cleanable);
  /// @param value    the big text; what follows its last space is its unit
  /// @param action   the label of the pill; empty for no pill
  void setCenter(const QString& value, const QString& caption, const QString& action);

  [[nodiscard]] const orb::Disk& disk() const { return m_disk; }
  [[nodiscard]] QString value() const { return m_value; }
  [[nodiscard]] QString caption() const { return m_caption; }
  [[nodiscard]] QString action() const { return m_action; }
  /// Whether the pointer is on the core.
  [[nodiscard]] bool isHovered() const { return m_hovered; }
  /// The square of the core, in the middle of the widget.
  [[nodiscard]] QRectF coreRect() const;

  /// The pill's label, or what stands on the core where there is no pill.
  [[nodiscard]] QString buttonText() const override;
  void press() override { emit clicked(); }
  /// What stands on the core, how full the disk is, and what can be cleaned.
  [[nodiscard]] QString valueText() const override;
  /// How full the disk is.
  [[nodiscard]] double valueFraction() const override;

 signals:
  void clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] bool isOnCore(const QPointF& point) const;
  void paintRing(QPainter* painter, const orb::Layout& layout) const;
  void paintHalo(QPainter* painter, const orb::Layout& layout) const;
  void paintText(QPainter* painter, const QRectF& core) const;
  void paintPill(QPainter* painter, const QRectF& pill) const;

  orb::Disk m_disk;
  QString m_value;
  QString m_caption;
  QString m_action;
  bool m_hovered = false;
  KeyboardFocus* m_focus;
};

} // namespace ui
