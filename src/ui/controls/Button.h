/// The push button of the interface. Primary and danger buttons paint themselves, the style sheet dresses the others.
#pragma once

#include <QPushButton>

class QPainter;

namespace ui {

/// Where the content of a filled button lies.
struct ButtonLayout {
  QRectF body;
  double radius = 0;
  QRectF icon; ///< null without an icon
  QRectF text;
};
/// @param size       of the whole button
/// @param textWidth  in the button's font
[[nodiscard]] ButtonLayout buttonLayout(const QSize& size, int textWidth, bool withIcon, bool large,
                                        Qt::LayoutDirection direction = Qt::LeftToRight);

class Button : public QPushButton {
  Q_OBJECT
  /// What the style sheet selects on: "lg" or nothing. Hides the size that every QWidget has under this name.
  Q_PROPERTY(QString size READ sizeName WRITE setSizeName)

 public:
  /// @param kind  "primary", "danger", "ghost", "link"; null or any other is an ordinary button
  /// @param size  "lg", or null for the usual size
  explicit Button(const QString& text, const char* kind = nullptr, const QString& iconName = {},
                  const char* size = nullptr, QWidget* parent = nullptr);

  /// An empty name takes the icon away.
  void setIconName(const QString& iconName);
  /// Takes effect at once; null is an ordinary button.
  void setKind(const char* kind);
  /// Holds it at this height in pixels instead of that of its kind, whatever a style sheet of its own adds.
  void setOwnHeight(int height);
  /// Whether it paints itself: primary and danger.
  [[nodiscard]] bool isFilled() const;
  [[nodiscard]] bool isLarge() const;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void initStyleOption(QStyleOptionButton* option) const override;

 private:
  [[nodiscard]] QString sizeName() const { return m_sizeName; }
  void setSizeName(const QString& name);
  [[nodiscard]] bool isPrimary() const;
  [[nodiscard]] bool isHovered() const;
  [[nodiscard]] int ownHeight() const; ///< 0: as high as its text
  void holdHeight();
  [[nodiscard]] QFont filledFont() const;
  [[nodiscard]] QColor iconColour() const;
  void refreshIcon();
  void refreshGlow();
  void paintBody(QPainter* painter, const ButtonLayout& layout) const;
  void paintHighlight(QPainter* painter, const ButtonLayout& layout) const;
  void paintContent(QPainter* painter, const ButtonLayout& layout) const;
  [[nodiscard]] QBrush primaryBrush(const QRectF& body) const;

  QString m_iconName;
  QString m_sizeName;
  int m_ownHeight = 0; ///< 0: that of its kind
};

} // namespace ui
