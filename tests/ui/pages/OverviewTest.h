/// What the tests of the Overview share: a page over a state of its own, and what is to be found on it.
#pragma once

#include "ui/pages/OverviewPage.h"

#include "app/AppSettings.h"
#include "app/AppState.h"
#include "core/fmt.h"
#include "engines/Scanner.h"
#include "engines/categories.h"
#include "support/pixels.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/Card.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/Headline.h"
#include "ui/controls/IconTile.h"
#include "ui/controls/IconView.h"
#include "ui/controls/PageHeader.h"
#include "ui/pages/CategoryTile.h"
#include "ui/pages/Chip.h"
#include "ui/pages/ChipRow.h"
#include "ui/pages/LegendItem.h"
#include "ui/pages/StatCard.h"
#include "ui/visuals/DiskOrb.h"
#include "ui/visuals/Sparkline.h"

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace overviewtest {

using namespace Qt::StringLiterals;

inline constexpr qint64 kGB = 1'000'000'000;

inline CategoryResult found(const QString& id, qint64 bytes) {
  CategoryResult made;
  made.def.id = id;
  made.def.title = u"Title of "_s + id;
  made.def.blurb = u"About "_s + id;
  made.def.icon = u"globe"_s;
  made.def.colour = Qt::red;
  made.bytes = bytes;
  return made;
}

inline QString roleOf(const QWidget* widget) { return widget->property("role").toString(); }

/// A page over a state of its own, with a disk of 1000 GB of which 400 are available.
struct Shown {
  AppState state;
  ui::OverviewPage page{&state};

  Shown() {
    setVolume(1000 * kGB, 400 * kGB);
    page.resize(724, 640);
  }

  void setVolume(qint64 total, qint64 available, qint64 purgeable = 0) {
    state.volume.totalBytes = total;
    state.volume.availableBytes = available;
    state.volume.purgeableBytes = purgeable;
    emit state.volumeChanged();
  }
  void setResults(const QList<CategoryResult>& results) {
    state.results = results;
    emit state.resultsChanged();
  }
  void setLastScan(const QDateTime& when) {
    state.lastScan = when;
    emit state.phaseChanged();
  }
  void show() {
    page.show();
    page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&page));
  }

  template <typename Widget>
  [[nodiscard]] Widget* only() const {
    const auto all = page.findChildren<Widget*>();
    Q_ASSERT(all.size() == 1);
    return all.first();
  }
  template <typename Widget>
  [[nodiscard]] Widget* withText(const QString& text) const {
    for (Widget* widget : page.findChildren<Widget*>())
      if (widget->text() == text) return widget;
    return nullptr;
  }
  [[nodiscard]] ui::DiskOrb* orb() const { return only<ui::DiskOrb>(); }
  [[nodiscard]] QString headline() const { return only<ui::Headline>()->text(); }
  [[nodiscard]] ui::Button* rescan() const { return withText<ui::Button>(u"Rescan"_s); }
  [[nodiscard]] ui::Button* seeAll() const { return withText<ui::Button>(u"See all"_s); }
  [[nodiscard]] QGridLayout* grid() const { return only<QGridLayout>(); }

  /// What stands right of the orb.
  [[nodiscard]] QLayout* heroText() const { return orb()->parentWidget()->layout()->itemAt(1)->layout(); }
  [[nodiscard]] QString diskLine() const { return qobject_cast<QLabel*>(heroText()->itemAt(5)->widget())->text(); }
  [[nodiscard]] QString scanChip() const {
    return heroText()->itemAt(9)->widget()->findChildren<ui::Chip*>().at(1)->shownText();
  }
  [[nodiscard]] QStringList legend() const {
    QStringList all;
    for (const ui::LegendItem* item : page.findChildren<ui::LegendItem*>()) all << item->shownText();
    return all;
  }
  /// Value and caption of freed, last scan, schedule.
  [[nodiscard]] QStringList stat(int index) const {
    const ui::StatCard* card = page.findChildren<ui::StatCard*>().at(index);
    return {card->value(), card->caption()};
  }
  [[nodiscard]] QString tilesHeading() const {
    for (const QLabel* label : page.findChildren<QLabel*>())
      if (roleOf(label) == u"h3") return label->text();
    return {};
  }
  /// In their places: row by row.
  [[nodiscard]] QList<ui::CategoryTile*> tiles() const {
    QList<ui::CategoryTile*> all;
    for (int row = 0; row < grid()->rowCount(); ++row)
      for (int column = 0; column < grid()->columnCount(); ++column)
        if (QLayoutItem* item = grid()->itemAtPosition(row, column))
          all << qobject_cast<ui::CategoryTile*>(item->widget());
    return all;
  }
  [[nodiscard]] QStringList tileNames() const {
    QStringList names;
    for (const ui::CategoryTile* tile : tiles()) names << tile->buttonText();
    return names;
  }
};

inline QList<CategoryResult> someResults() {
  return {found(u"temp"_s, 2 * kGB), found(u"browser"_s, 5 * kGB), found(u"trash"_s, 1 * kGB)};
}

} // namespace overviewtest

class OverviewTest : public QObject {
 protected:
  static void installOnce() {
    records::registerMetaTypes();
    Theme::get().install(qApp);
  }
  static void reset() {
    qputenv("TARNWICK_HOST", "linux");
    Theme::get().mac = true;
    AppSettings& settings = AppSettings::instance();
    settings.setThemeMode(AppSettings::Light);
    settings.setSchedule(AppSettings::Weekly);
    settings.setLastScan({});
    settings.put("history/freed", QVariantMap());
  }
};
