/// The list of what a scan found: the categories in three groups by risk, each with a check box.
#pragma once

#include "app/records.h"
#include "ui/controls/Card.h"

#include <QList>
#include <QString>

class AppState;
class QCheckBox;
class QScrollArea;
class QVBoxLayout;

namespace ui {

class CategoryRow;
class KeyboardFocus;

/// Up, Down, Home and End move the keyboard between the rows, or between their check boxes.
class CleanupCategories : public Card {
  Q_OBJECT

 public:
  explicit CleanupCategories(AppState* state, QWidget* parent = nullptr);

  /// Builds the rows anew. A row or check box that has the focus keeps it, as the one of the same category.
  /// @param activeId  whose row stands out
  void rebuild(const QString& activeId);
  /// Brings the box above the list up to date.
  void refreshSelectAll();
  /// What the keyboard reaches, in order.
  [[nodiscard]] QList<QWidget*> focusStops() const;

 signals:
  /// A row was clicked.
  void chosen(const QString& id);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Row {
    QString id;
    CategoryRow* row = nullptr;
    QCheckBox* box = nullptr;
    KeyboardFocus* boxFocus = nullptr;
  };
  /// Where the focus was.
  struct Place {
    QString id; ///< empty: not in the list
    bool inBox = false;
    bool byKeyboard = false;
  };

  [[nodiscard]] Place focusPlace() const;
  void restoreFocus(const Place& place);
  void addGroup(Safety safety, const char* heading, qint64 largest, const QString& activeId);
  void addRow(const CategoryResult& result, qint64 largest, bool active);
  [[nodiscard]] QCheckBox* buildBox(const CategoryResult& result);
  bool moveFrom(const QObject* from, int key);

  AppState* m_state;
  QScrollArea* m_scroll;
  QCheckBox* m_selectAll;
  QVBoxLayout* m_categoryLayout;
  QList<Row> m_rows;
};

/// How many results hold something.
[[nodiscard]] qsizetype filledCategories(const AppState& state);
/// How many of them a clean would take something of.
[[nodiscard]] qsizetype pickedCategories(const AppState& state);

} // namespace ui
