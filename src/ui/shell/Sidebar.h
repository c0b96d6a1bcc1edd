/// The left column of the window: which page is on show, and how full the disk is. It collapses to nothing in the mac
/// metrics and to a rail of icons otherwise, and remembers that.
#pragma once

#include <QWidget>

class AppState;
class QBoxLayout;
class QButtonGroup;
class QLabel;
class QVariantAnimation;
class QVBoxLayout;

namespace ui {

class DriveCard;
class NavButton;
class SidebarToggle;

/// The width of an expanded sidebar whose longest entry is this wide, in pixels.
[[nodiscard]] int sidebarWidth(int widestText);

class Sidebar : public QWidget {
  Q_OBJECT

 public:
  /// Numbers the pages: an entry's id, and the page's index in the window's stack.
  enum Page { Overview = 0, Cleanup = 1, SpaceMap = 2, Settings = 3, SystemData = 4 };

  /// @param pages  those that the window has; others get no entry
  Sidebar(AppState* state, const QList<int>& pages, QWidget* parent = nullptr);

  /// Checks that page's entry; emits nothing. An unknown page does nothing.
  void setCurrent(int page);
  /// Stores the choice, tells, and takes the width that goes with it: in a short slide if @p animate is set, the
  /// sidebar is visible and the desktop doesn't ask for less motion.
  void setCollapsed(bool collapsed, bool animate);
  void toggle();
  [[nodiscard]] bool isCollapsed() const { return m_collapsed; }

  /// Follows from the longest entry, within bounds. In pixels.
  [[nodiscard]] int expandedWidth() const { return m_expandedWidth; }
  [[nodiscard]] int compactWidth() const;
  [[nodiscard]] SidebarToggle* toggleButton() const { return m_toggle; }
  /// The strip above the entries, by which the window is moved; null in the metrics that have none.
  [[nodiscard]] QWidget* topRow() const { return m_topRow; }

 signals:
  /// An entry was clicked, also that of the page on show.
  void navigate(int page);
  void collapsedChanged(bool collapsed);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void buildEntries(QVBoxLayout* column, const QList<int>& pages);
  void buildFoot(QVBoxLayout* column, const QList<int>& pages);
  [[nodiscard]] NavButton* makeEntry(int page);
  void fitWidth();
  void slideTo(int width);
  void endOfSlide();
  void applyCompact(bool compact);
  void applyCompactFoot(bool compact);
  void refreshBadge();

  AppState* m_state;
  QButtonGroup* m_group;
  NavButton* m_cleanup = nullptr;
  QWidget* m_topRow = nullptr;
  QLabel* m_heading = nullptr;
  SidebarToggle* m_toggle;
  QBoxLayout* m_foot = nullptr; ///< the row of the Settings entry and the toggle; null in the mac metrics
  DriveCard* m_drive;
  QVariantAnimation* m_slide = nullptr; ///< the one that runs
  bool m_collapsed = false;
  int m_expandedWidth = 0;
};

} // namespace ui
