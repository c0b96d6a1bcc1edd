/// What a measuring of System Data found: how it divides up, what the user can do something about, and the rest.
#pragma once

#include "app/records.h"

#include <QWidget>

#include <optional>

class QVBoxLayout;

namespace ui {

class Note;
class SystemDataRow;

/// What is going on while the results are on show. Nothing can be done then.
enum class SystemDataWork { None, Measuring, Acting };

/// Keeps nothing but its widgets: what it shows comes with rebuild().
class SystemDataResults : public QWidget {
  Q_OBJECT

 public:
  explicit SystemDataResults(QWidget* parent = nullptr);

  /// Shows these items. The page stays where it was scrolled to, and the button that the keyboard was at has it again
  /// as soon as something can be done.
  void rebuild(const QList<SystemDataItem>& items, SystemDataWork work);
  /// Its buttons come after @p before by Tab, and the keyboard goes there when what it was at has gone. Once.
  void setTabAfter(QWidget* before) { m_before = before; }

 signals:
  /// The user wants what the button of this item says.
  void actionWanted(const QString& id);

 private:
  /// A button that has, or had, the focus.
  struct Place {
    QString id;
    bool byKeyboard = false;
  };

  void addHeadline(const QList<SystemDataItem>& items, SystemDataWork work);
  void addNote();
  void addList(const QString& heading, const QList<SystemDataItem>& items, int column, bool busy);
  void addRow(QVBoxLayout* card, const SystemDataItem& item, int column, bool busy);
  void putInTabOrder();
  void takeFocus();
  void giveFocus(bool busy);
  [[nodiscard]] SystemDataRow* rowOf(const QString& id) const;

  QVBoxLayout* m_content;
  QWidget* m_before = nullptr;
  Note* m_note = nullptr;
  QList<SystemDataRow*> m_rows;
  std::optional<Place> m_place; ///< where the focus was when it was taken
};

} // namespace ui
