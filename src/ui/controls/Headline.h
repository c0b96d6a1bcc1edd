/// A heading that wraps, in which one part shines in the brand gradient.
#pragma once

#include "ui/accessible.h"

#include <QFont>
#include <QWidget>

class QTextLayout;

namespace ui {

/// Wants up to 520 pixels, takes more, and wraps in less.
class Headline : public QWidget, public AccessibleText {
  Q_OBJECT

 public:
  explicit Headline(int pixelSize, QWidget* parent = nullptr);

  /// @p value takes the place of the first "%1" and shines; a format without one is shown as it is, and nothing shines.
  void set(const QString& format, const QString& value = {});
  [[nodiscard]] QString text() const { return m_text; }
  /// Where the shining part begins and how long it is, in characters; both 0 for none.
  [[nodiscard]] int accentStart() const { return m_accentStart; }
  [[nodiscard]] int accentLength() const { return m_accentLength; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;
  /// Of the wrapped text, rounded up; a width below 80 counts as 80.
  [[nodiscard]] int heightForWidth(int width) const override;
  [[nodiscard]] QString shownText() const override { return m_text; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Lays the text out in lines of this width, one right below the other. @return their height
  double layOut(QTextLayout* layout, double width) const;

  QFont m_font;
  QString m_text;
  int m_accentStart = 0;
  int m_accentLength = 0;
};

} // namespace ui
