/// The detail of one category: what it is, what stands in the way of cleaning it, and its largest items with a check
/// box each.
#pragma once

#include "app/records.h"
#include "ui/controls/Card.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QString>

#include <utility>

class AppState;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace ui {

class KeyboardFocus;

/// The icon of an item's row.
[[nodiscard]] QString itemIcon(const CategoryDef& def, const CleanItem& item);

/// Items are rows of real widgets, so only the first are shown, and more when asked for. What is ticked is the whole
/// category's all the same.
class CleanupDetail : public Card {
  Q_OBJECT

 public:
  explicit CleanupDetail(AppState* state, QWidget* parent = nullptr);

  /// Shows this category, another one from the top; one that isn't among the results is told as nothing to clean.
  void showCategory(const QString& id);
  /// Every category shows its first few items again, from the next showCategory() on.
  void forgetLimits() { m_shownItemLimits.clear(); }
  /// Brings the check boxes up to date and leaves everything else alone.
  void refreshTicks();
  /// What the keyboard reaches, in order.
  [[nodiscard]] QList<QWidget*> focusStops() const { return m_focusStops; }

 signals:
  /// Its controls are others than before.
  void rebuilt();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void rebuild();
  void placeAges();
  void placeSize();
  void fill(const CategoryResult& result);
  void addHeader(const CategoryResult& result);
  void addBlurb(const CategoryDef& def);
  void addNotes(const CategoryResult& result);
  void addItemsHeading(const CategoryResult& result);
  void addSelectAll(const QString& id);
  void addItems(const CategoryResult& result, qsizetype shown);
  void addItem(const CategoryDef& def, const CleanItem& item);
  [[nodiscard]] QCheckBox* buildItemBox(const CleanItem& item);
  void addRemainder(qsizetype rest, qsizetype shown);
  void showMore(qsizetype limit);

  AppState* m_state;
  QString m_id; ///< of the category on show
  QScrollArea* m_detailScroll;
  QVBoxLayout* m_detailLayout;
  KeyboardFocus* m_scrollFocus;
  QHash<QString, qsizetype> m_shownItemLimits;                 ///< by category; without an entry the first few
  QList<std::pair<QPointer<QCheckBox>, QString>> m_itemChecks; ///< with the item's path
  QList<QLabel*> m_ages;
  QLabel* m_title = nullptr;             ///< null where no category is on show, and nor are the next three
  QHBoxLayout* m_header = nullptr;       ///< its row
  QVBoxLayout* m_titleLines = nullptr;   ///< what stands below it
  QWidget* m_size = nullptr;             ///< in its row, or below it
  QPointer<QCheckBox> m_detailSelectAll; ///< null where there is none
  QList<QWidget*> m_focusStops;
  QPointer<KeyboardFocus> m_moreFocus; ///< of the button that shows more items
};

} // namespace ui
