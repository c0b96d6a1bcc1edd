/// What the tests of the System Data results share: the parts of the view, from top to bottom.
#pragma once

#include "SystemDataTest.h"
#include "ui/controls/Note.h"
#include "ui/visuals/StackBar.h"

inline constexpr const char* kHosts[] = {"linux", "mac"};

class SystemDataResultsTest : public SystemDataTest {
 protected:
  static void hosts() {
    QTest::addColumn<QString>("host");
    for (const char* host : kHosts) QTest::newRow(host) << QString::fromLatin1(host);
  }
  [[nodiscard]] QWidget* results() const { return views()->widget(Results); }
  [[nodiscard]] QScrollArea* area() const { return results()->findChild<QScrollArea*>(); }
  /// Of what is shown: cards, headings, the note, in the column of the page.
  [[nodiscard]] const QBoxLayout* content() const {
    return systemdatatest::boxOf(systemdatatest::boxOf(area()->widget())->itemAt(0));
  }
  [[nodiscard]] ui::Card* headlineCard() const { return qobject_cast<ui::Card*>(content()->itemAt(0)->widget()); }
  [[nodiscard]] ui::StackBar* stackBar() const { return results()->findChild<ui::StackBar*>(); }
  [[nodiscard]] const QBoxLayout* legendRow() const {
    return systemdatatest::boxOf(systemdatatest::boxOf(headlineCard())->itemAt(2)->widget());
  }
  [[nodiscard]] ui::Note* note() const { return results()->findChild<ui::Note*>(); }
  [[nodiscard]] QStringList headings() const {
    QStringList all;
    for (const QLabel* label : results()->findChildren<QLabel*>())
      if (systemdatatest::roleOf(label) == u"h3") all << label->text();
    return all;
  }
  [[nodiscard]] QStringList ids() const {
    QStringList all;
    for (const ui::SystemDataRow* one : rows()) all << one->id();
    return all;
  }
  [[nodiscard]] ui::Button* buttonOf(const QString& id) const { return row(id)->button(); }
};
