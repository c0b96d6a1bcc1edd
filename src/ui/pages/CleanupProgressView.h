/// The Cleanup page while a clean runs: a ring that fills, and what is being removed.
#pragma once

#include <QWidget>

namespace ui {

class PathLabel;
class ProgressRing;

class CleanupProgressView : public QWidget {
  Q_OBJECT

 public:
  explicit CleanupProgressView(QWidget* parent = nullptr);

  /// Back to the beginning of a clean of @p total bytes. The path stays until there is another.
  void reset(qint64 total);
  /// @param done   bytes dealt with
  /// @param total  bytes of the whole clean; 0 keeps the ring empty
  /// @param path   in native separators; empty leaves the path that is shown
  void setProgress(qint64 done, qint64 total, const QString& path);

 private:
  ProgressRing* m_ring;
  PathLabel* m_cleanPath;
};

} // namespace ui
