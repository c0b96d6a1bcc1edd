/// The page of all of the user's choices. Each control stores its choice at once; there is nothing to apply. Built once
/// with the values of the moment, it follows what is set elsewhere in two places only: what closing the window does,
/// which a dialog can change, and the rules, where the store turns out to be damaged.
#pragma once

#include "app/AppSettings.h"

#include <QList>
#include <QString>
#include <QWidget>

class AppState;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace ui {

class Button;
class Note;
class Switch;

class SettingsPage : public QWidget {
  Q_OBJECT

 public:
  /// @param state  not owned; outlives the page
  explicit SettingsPage(AppState* state, QWidget* parent = nullptr);

  /// Brings the list of rules into view, with the focus where the user confirms them, or adds one.
  void showExclusions();
  /// There is nothing to check: updates come from elsewhere. So it is from the start in a build that says so.
  void hideUpdates();

 signals:
  /// The user wants to know whether there is a new version.
  void checkForUpdates();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] QList<QWidget*> cleaningRows();
  [[nodiscard]] QList<QWidget*> automationRows();
  [[nodiscard]] QList<QWidget*> appearanceRows();
  [[nodiscard]] QList<QWidget*> exclusionRows();
  [[nodiscard]] QList<QWidget*> aboutRows();

  [[nodiscard]] QWidget* loginRow();
  [[nodiscard]] QWidget* trayRow();
  [[nodiscard]] QWidget* closeRow();
  [[nodiscard]] QWidget* languageRow();
  [[nodiscard]] QWidget* programRow();
  void chooseLogin(Switch* control, bool on);

  [[nodiscard]] QWidget* rulesRow();
  [[nodiscard]] QWidget* buildRulesNote();
  [[nodiscard]] Button* addRuleCard(const QString& rule);
  void rebuildExclusions();
  void refreshRulesNote();
  void addFolder();
  void removeRule(const QString& rule);
  void acceptRules();

  AppState* m_state;
  QVBoxLayout* m_exclusionsLayout; ///< the list of rules
  QScrollArea* m_scroll = nullptr;
  QWidget* m_rulesRow = nullptr;
  Button* m_addButton = nullptr;
  Button* m_checkButton = nullptr;
  QWidget* m_programRow = nullptr;
  Note* m_rulesNote = nullptr; ///< asks to look at the rules, where the store isn't sound
  QPushButton* m_acceptButton = nullptr;
  QList<Button*> m_removeButtons;                              ///< one for each rule, in their order
  AppSettings::Store m_shownWorth = AppSettings::Store::Sound; ///< for which the rules are shown
};

} // namespace ui
