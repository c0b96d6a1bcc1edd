/// How tests work the window: find what a user sees, click it, reach it by keyboard, and read all there is to read.
#pragma once

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTextDocumentFragment>
#include <QWidget>

namespace windowtest {

/// A visible button of exactly this text; null if there is none.
inline QAbstractButton* button(const QWidget& among, const QString& text) {
  for (QAbstractButton* one : among.findChildren<QAbstractButton*>())
    if (one->text() == text && one->isVisible()) return one;
  return nullptr;
}

inline void click(const QWidget& among, const QString& text) {
  QAbstractButton* one = button(among, text);
  QVERIFY2(one, qPrintable(text));
  QVERIFY2(one->isEnabled(), qPrintable(text));
  QTest::mouseClick(one, Qt::LeftButton);
}

/// Presses a key where the focus is, else in the window.
inline void press(QWidget& window, Qt::Key key) {
  QWidget* focused = QApplication::focusWidget();
  QTest::keyClick(focused ? focused : &window, key);
}

/// Presses Tab until what has the focus satisfies @p isThere. @return whether that came within a hundred times
template <typename Test>
bool tabUntil(QWidget& window, Test isThere) {
  constexpr int kMost = 100;
  for (int i = 0; i < kMost; ++i) {
    const QWidget* focused = QApplication::focusWidget();
    if (focused && isThere(focused)) return true;
    press(window, Qt::Key_Tab);
  }
  return false;
}

/// Presses Tab until a button whose text begins so has the focus.
inline void tabTo(QWidget& window, const QString& text) {
  const bool came = tabUntil(window, [&](const QWidget* focused) {
    const auto* one = qobject_cast<const QAbstractButton*>(focused);
    return one && one->text().startsWith(text);
  });
  QVERIFY2(came, qPrintable(text));
}

/// @p text as it is read, without markup.
inline QString plain(const QString& text) {
  return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// What stands on the visible labels and buttons below @p widget.
inline QStringList shownTexts(const QWidget& widget) {
  QStringList texts;
  for (const QLabel* label : widget.findChildren<QLabel*>())
    if (label->isVisible() && !label->text().isEmpty()) texts << plain(label->text());
  for (const QAbstractButton* one : widget.findChildren<QAbstractButton*>())
    if (one->isVisible() && !one->text().isEmpty()) texts << one->text();
  return texts;
}

/// Whether one of them begins so.
inline bool shows(const QWidget& widget, const QString& beginning) {
  for (const QString& text : shownTexts(widget))
    if (text.startsWith(beginning)) return true;
  return false;
}

/// All that can be read or heard of @p widget and of everything below it, on show or not: texts, titles, tips, and what
/// a screen reader is told.
inline QStringList allTexts(QWidget* widget) {
  QStringList texts;
  QList<QWidget*> widgets = widget->findChildren<QWidget*>();
  widgets << widget;
  for (QWidget* one : std::as_const(widgets)) {
    for (const char* property : {"text", "title", "placeholderText", "windowTitle", "toolTip", "whatsThis"})
      texts << plain(one->property(property).toString());
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(one);
    if (!spoken) continue;
    for (const QAccessible::Text kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
      texts << plain(spoken->text(kind));
  }
  texts.removeDuplicates();
  texts.removeAll(QString());
  return texts;
}

} // namespace windowtest
