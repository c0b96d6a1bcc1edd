/// Colour, type and metrics of the interface, in one place. User-interface thread only.
#pragma once

#include <QColor>
#include <QFont>
#include <QLinearGradient>
#include <QObject>
#include <QString>

class QApplication;
class QPainter;
class QRect;
class QRectF;

/// A semantic colour, for icons and small marks.
enum class Tone { Text, Text2, Text3, Accent, OnAccent, Ok, Warn, Bad, White };

/// Feeds palette, font and style sheet of the application, and every painted control at paint time: nothing keeps a
/// colour across a change of look.
class Theme : public QObject {
  Q_OBJECT

 public:
  /// Built on first use; reads TARNWICK_LOOK then.
  static Theme& get();

  /// Wires the theme to the application, makes painted controls readable (ui/accessible.h), names the family for the
  /// characters of a language with Han script, and refreshes. Once, at start-up.
  void install(QApplication* app);

  [[nodiscard]] QColor tone(Tone tone) const;
  /// Interface font. @p display marks display type, which has the same face at this time.
  [[nodiscard]] QFont font(int pixelSize, int weight, bool display = false) const;
  /// Numeric and code font; falls back to the interface font for what it lacks.
  [[nodiscard]] QFont mono(int pixelSize, int weight) const;
  /// The small overline font: capitals, spaced out unless the language has wide scripts.
  [[nodiscard]] QFont eyebrow(int pixelSize) const;
  /// The brand gradient, from the top left to the bottom right corner; the same in both looks.
  [[nodiscard]] static QLinearGradient gradient(const QRectF& rect);
  /// The window's background: the page colour and two soft glows.
  void paintBackdrop(QPainter* painter, const QRect& rect) const;
  /// The finished style sheet of the look in force.
  [[nodiscard]] QString styleSheet() const;

 public slots:
  /// Decides on light or dark, assigns all colours, feeds the application if installed, and always tells.
  void refresh();

 signals:
  /// Palette, font and style sheet are in place.
  void changed();

 private:
  Theme();
  [[nodiscard]] bool darkWanted() const;
  void applyToApplication();

  QApplication* m_app = nullptr;

 public:
  // The colour roles, in the order of their table.
  QColor bg, surface, surface2, hover, press;
  QColor text, text2, text3;
  QColor line, lineStrong;
  QColor accent, accentHover, accentSoft, onAccent;
  QColor ok, okSoft, warn, warnSoft, bad, badSoft;
  QColor scrim, toastBg, toastFg;
  QColor card, cardHover, track;
  QColor glowA, glowB, core;

  bool dark = false; ///< changes in refresh() only
  bool mac = true;   ///< metric set; fixed at construction
};
