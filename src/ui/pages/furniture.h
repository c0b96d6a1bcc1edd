/// What several pages are furnished with: the centred block, the start view, the view of a running search with its
/// radar, counters and estimate, a value over its caption. User-interface thread only.
#pragma once

#include "ui/controls/Card.h"

#include <QLabel>
#include <QString>

class QCheckBox;
class QElapsedTimer;
class QHBoxLayout;
class QLayout;
class QVBoxLayout;

namespace ui {

class Button;
class KeyboardFocus;
class Radar;

/// What a page leaves free at its left and right, in pixels.
[[nodiscard]] int pageSide();

/// What a block that ends with a filled button leaves free below it, so that the button's glow isn't cut off; pixels.
inline constexpr int kGlowRoom = 34;

/// A widget that holds @p block in the middle of its width, at most @p maxWidth wide. The block keeps its margins.
[[nodiscard]] QWidget* centred(QLayout* block, int maxWidth);

/// What a page shows before anything was done on it.
struct StartWords {
  QString icon;
  QString title;
  QString text;
  QString button;
  QString buttonIcon;
};
struct StartBlock {
  QVBoxLayout* layout = nullptr; ///< no margins but room for the button's glow; no parent yet
  Button* start = nullptr;
};
[[nodiscard]] StartBlock startBlock(const StartWords& words);
/// That block as the whole view below a page's header: near the top, with the rest left free.
struct StartView {
  QWidget* view = nullptr; ///< no parent yet
  Button* start = nullptr;
};
[[nodiscard]] StartView startView(const StartWords& words);

/// A value over its caption, both centred.
struct StatPair {
  QVBoxLayout* layout = nullptr; ///< no parent yet
  QLabel* value = nullptr;
};
struct StatSizes {
  int value = 15;  ///< font size in pixels
  int caption = 0; ///< 0: as every caption
};
[[nodiscard]] StatPair statPair(const QString& caption, const StatSizes& sizes = {});

/// A check box without a label, no wider than its square. @param name  what a screen reader calls it
[[nodiscard]] QCheckBox* bareCheckBox(const QString& name);

/// A line for a path, never wider than the room it is given; what doesn't fit is left out in the middle.
class PathLabel : public QLabel {
  Q_OBJECT

 public:
  explicit PathLabel(QWidget* parent = nullptr);
  /// Shows @p path in native separators, shortened to @p widthPx. Its whole text is told to screen readers.
  void setPath(const QString& path, int widthPx);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// The card at the left of a running search: the radar, where it is looking, and counters.
class RadarCard : public Card {
  Q_OBJECT

 public:
  /// @param name  what a screen reader calls the radar
  explicit RadarCard(const QString& name, QWidget* parent = nullptr);

  [[nodiscard]] Radar* radar() const { return m_radar; }
  [[nodiscard]] PathLabel* path() const { return m_path; }
  /// Appends a counter, which shows "—" until its text is set. @return its value, owned by the card
  QLabel* addCounter(const QString& caption);

 private:
  Radar* m_radar;
  PathLabel* m_path;
  QHBoxLayout* m_counters;
};

/// The room of a running search below the page's header: the radar at the left, what comes of it at the right.
struct ScanShares {
  int radar = 0; ///< stretch; 0: as wide as it wants to be
  int results = 1;
};
[[nodiscard]] QHBoxLayout* scanBody(RadarCard* radar, QWidget* results, const ScanShares& shares = {});

/// A card for what comes of it: a heading, and what its column is given below.
class ListCard : public Card {
  Q_OBJECT

 public:
  explicit ListCard(const QString& heading, QWidget* parent = nullptr);

  [[nodiscard]] QVBoxLayout* column() const { return m_column; }
  /// Shows around the whole card that @p inside, which fills it, has the focus from the keyboard. Once.
  void ringFor(QWidget* inside);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QVBoxLayout* m_column;
  KeyboardFocus* m_inside = nullptr;
};

/// How far a search is, from 0 to 1: it moves by whole steps, and the one in progress counts as half done.
/// @param current  index of the step in progress; -1 before the first
/// @param count    of steps; 0 gives 0
[[nodiscard]] double scanFraction(int current, qsizetype count);
/// Whole seconds since @p clock was started; 0 for one that wasn't.
[[nodiscard]] qint64 elapsedSeconds(const QElapsedTimer& clock);
/// The estimate of the time that is left, "~1:05", or "—" where it is too early for one.
[[nodiscard]] QString scanRemaining(double fraction, qint64 elapsedSeconds);

} // namespace ui
