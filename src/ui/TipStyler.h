/// Turns Qt's square tool tips into rounded bubbles with a soft shadow. User-interface thread only.
#pragma once

#include <QObject>
#include <QString>

class QLabel;
class QWidget;

/// An event filter for the whole application; only Qt's own tip labels are touched, and every event goes on to them.
/// The style sheet leaves a margin of 8 around the text of a tip, in which the shadow lies. Without a compositor the
/// tip is cut down to its bubble.
class TipStyler : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

/// @p text as a tool tip that shows it as it is, even if it looks like markup, as the name of a file may.
[[nodiscard]] QString plainTip(const QString& text);

/// Shows the tool tip of @p widget in lines of a readable length, if that is what @p event asks for: a plain text would
/// be one line as wide as the screen. False: the event is the base class's.
bool showTipInLines(QWidget* widget, QEvent* event);
