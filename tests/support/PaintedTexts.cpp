#include "support/PaintedTexts.h"

#include <QFontMetricsF>
#include <QGraphicsEffect>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kTouching = 0.75; // pixels

class Engine : public QPaintEngine {
 public:
  Engine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  [[nodiscard]] Type type() const override { return User; }
  void updateState(const QPaintEngineState& changed) override {
    if (changed.state() & DirtyTransform) m_transform = changed.transform();
  }
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  void drawPath(const QPainterPath&) override {}

  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QRectF box(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
    const QRectF clip = painter()->hasClipping() ? m_transform.mapRect(painter()->clipBoundingRect()) : QRectF();
    add({item.text(), m_transform.mapRect(box), clip, item.font(), m_transform.map(at).y()});
  }

  QList<PaintedText> texts;

 private:
  // One font may lack a letter, whose neighbours are then runs of their own.
  void add(const PaintedText& run) {
    if (!texts.isEmpty()) {
      PaintedText& last = texts.last();
      const bool touches = std::abs(last.box.right() - run.box.left()) < kTouching;
      if (touches && last.box.top() < run.box.bottom() && run.box.top() < last.box.bottom()) {
        last.text += run.text;
        last.box |= run.box;
        return;
      }
    }
    texts << run;
  }

  QTransform m_transform;
};

class Device : public QPaintDevice {
 public:
  explicit Device(const QWidget* widget) : m_widget(widget) {}
  [[nodiscard]] QPaintEngine* paintEngine() const override { return &m_engine; }
  [[nodiscard]] const QList<PaintedText>& texts() const { return m_engine.texts; }

 protected:
  [[nodiscard]] int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
    case PdmWidth:
      return m_widget->width();
    case PdmHeight:
      return m_widget->height();
    case PdmDepth:
      return 32;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return int(devicePixelRatioFScale());
    case PdmDpiX:
    case PdmPhysicalDpiX:
      return m_widget->logicalDpiX();
    case PdmDpiY:
    case PdmPhysicalDpiY:
      return m_widget->logicalDpiY();
    default:
      return 0;
    }
  }

 private:
  const QWidget* m_widget;
  mutable Engine m_engine;
};

} // namespace

QRectF PaintedText::ink() const {
  QRectF ink = QFontMetricsF(font).tightBoundingRect(text).translated(box.left(), baseline);
  ink.setRight(std::min(ink.right(), box.right())); // it is rounded up
  return ink;
}

QList<PaintedText> paintedTexts(QWidget* widget) {
  QGraphicsEffect* effect = widget->graphicsEffect();
  const bool hadEffect = effect && effect->isEnabled();
  if (hadEffect) effect->setEnabled(false); // it paints the widget as a picture
  Device device(widget);
  widget->render(&device, {}, {}, {});
  if (hadEffect) effect->setEnabled(true);
  QList<PaintedText> texts = device.texts();
  for (PaintedText& one : texts)
    if (one.clip.isNull()) one.clip = widget->rect();
  return texts;
}
