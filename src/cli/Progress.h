/// One line on standard error that tells what a run is doing. Nothing where that is no terminal.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

class AppState;

namespace cli {

class Progress : public QObject {
  Q_OBJECT

 public:
  explicit Progress(const AppState& state);
  ~Progress() override;

  /// Shows the line and keeps it up to date until hide().
  void show();
  /// Takes the line off the terminal.
  void hide();
  /// Words that stand in the place of the path from now on: that the user's wish to stop was heard.
  void setNote(const QString& note);

 private:
  void draw() const;
  [[nodiscard]] QString figures() const;
  [[nodiscard]] QString scanning() const;
  [[nodiscard]] QString cleaning() const;
  [[nodiscard]] QString searching() const;
  [[nodiscard]] QString measuring() const;

  const AppState& m_state;
  const bool m_possible;
  QString m_note;
  enum class Task { Scan, Clean, Search, Measure };
  Task m_task = Task::Scan;
  qint64 m_done = 0; // bytes of a clean, as m_total, or of a row of System Data, or that large files hold
  qint64 m_total = 0;
  QString m_path;
  int m_found = 0;    // large files
  QStringList m_rows; // titles of System Data, read once it is measured
  int m_row = 0;      // of them, the one being measured
  QElapsedTimer m_elapsed;
  QTimer m_timer;
};

} // namespace cli
