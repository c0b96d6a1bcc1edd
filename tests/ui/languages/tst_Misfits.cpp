// What finds texts that don't fit finds them, and nothing else.
#include "support/misfits.h"

#include "support/PaintedTexts.h"
#include "support/uitest.h"
#include "ui/Theme.h"
#include "ui/controls/Button.h"
#include "ui/controls/ElidedLabel.h"
#include "ui/controls/factory.h"
#include "ui/shell/Toast.h"

#include <QGraphicsEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

const QString kLong = u"A text that is longer than its room"_s;

/// Paints a text at a place, whatever its size.
class Painted : public QWidget {
 public:
  Painted(QWidget* parent, const QRect& place, const QString& text, const QPoint& at)
      : QWidget(parent), m_text(text), m_at(at) {
    setGeometry(place);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).drawText(m_at, m_text); }

 private:
  QString m_text;
  QPoint m_at;
};

QLabel* labelAt(QWidget* parent, const QRect& place, const QString& text = kLong) {
  QLabel* result = ui::label(text, nullptr, parent);
  result->setGeometry(place);
  return result;
}

} // namespace

class TestMisfits : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { Theme::get().install(qApp); }
  void init() {
    m_window = std::make_unique<QWidget>();
    m_window->resize(400, 300);
  }

  void readsWhatIsPainted();
  void readsThroughEffects();
  void nothingWhereAllFits();
  void cutLabel();
  void cutByTheParent();
  void cutLines();
  void cutButton();
  void scrolledTextIsWhole();
  void shortened();
  void overlapping();
  void whatFloatsIsApart();
  void squeezedWidgets();
  void contentWiderThanItsArea();

 private:
  QStringList found() {
    m_window->show();
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents(); // layouts in layouts
    return misfits(m_window.get());
  }
  [[nodiscard]] bool finds(const QString& beginning) {
    const QStringList all = found();
    for (const QString& one : all)
      if (one.startsWith(beginning)) return true;
    qInfo("%s", qPrintable(all.join(u'\n')));
    return false;
  }

  std::unique_ptr<QWidget> m_window;
};

void TestMisfits::readsWhatIsPainted() {
  Painted one(m_window.get(), QRect(10, 10, 200, 40), u"Grüße 日本"_s, {5, 20});
  const QList<PaintedText> texts = paintedTexts(&one);
  QCOMPARE(texts.size(), 1); // two fonts, one text
  QCOMPARE(texts.first().text, u"Grüße 日本"_s);
  QCOMPARE(texts.first().box.left(), 5.0);
  QCOMPARE(texts.first().baseline, 20.0);
  QCOMPARE(texts.first().clip, QRectF(0, 0, 200, 40));
  QVERIFY(texts.first().box.contains(texts.first().ink().center()));
  QVERIFY(texts.first().ink().height() < texts.first().box.height());
}

void TestMisfits::readsThroughEffects() {
  ui::Button glowing(u"Clean"_s, "primary");
  glowing.resize(glowing.sizeHint());
  QVERIFY(glowing.graphicsEffect() && glowing.graphicsEffect()->isEnabled());
  QCOMPARE(paintedTexts(&glowing).value(0).text, u"Clean"_s);
  QVERIFY(glowing.graphicsEffect()->isEnabled());
}

void TestMisfits::nothingWhereAllFits() {
  QVBoxLayout* column = ui::vbox(4);
  m_window->setLayout(column);
  column->addWidget(ui::label(kLong));
  column->addWidget(new ui::Button(u"Clean"_s, "primary"));
  QLabel* wrapping = ui::label(u"Lines upon lines. "_s.repeated(20));
  wrapping->setWordWrap(true);
  column->addWidget(wrapping);
  QCOMPARE(found(), QStringList());
}

void TestMisfits::cutLabel() {
  QLabel* label = labelAt(m_window.get(), QRect(0, 0, 60, 30));
  QVERIFY(finds(u"cut \"A text"_s));
  label->resize(label->sizeHint());
  QCOMPARE(found(), QStringList());
}

void TestMisfits::cutByTheParent() {
  QWidget inner(m_window.get());
  inner.setGeometry(0, 0, 100, 50);
  labelAt(&inner, QRect(0, 0, 300, 30));
  QVERIFY(finds(u"cut \"A text"_s));
  inner.resize(300, 50);
  QCOMPARE(found(), QStringList());
}

void TestMisfits::cutLines() {
  QLabel* lines = labelAt(m_window.get(), QRect(0, 0, 120, 30), u"Lines upon lines. "_s.repeated(5));
  lines->setWordWrap(true);
  QVERIFY(finds(u"cut "_s));
  lines->resize(120, lines->heightForWidth(120));
  QCOMPARE(found(), QStringList());
}

void TestMisfits::cutButton() {
  ui::Button button(u"Select recommended"_s, "ghost");
  button.setParent(m_window.get());
  button.resize(button.sizeHint());
  QCOMPARE(found(), QStringList());
  button.resize(button.width() - 12, button.height());
  QVERIFY(finds(u"cut \"Select"_s));
}

void TestMisfits::scrolledTextIsWhole() {
  QScrollArea area(m_window.get());
  area.setGeometry(0, 0, 390, 100);
  area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* content = new QWidget;
  content->setFixedSize(360, 400);
  labelAt(content, QRect(0, 90, 300, 30)); // across the lower edge
  labelAt(content, QRect(0, 300, 300, 30), u"Below"_s);
  area.setWidget(content);
  QCOMPARE(found(), QStringList());
  labelAt(content, QRect(340, 10, 300, 30))->show();
  QVERIFY(finds(u"cut \"A text"_s));
}

void TestMisfits::shortened() {
  Painted one(m_window.get(), QRect(0, 0, 200, 40), u"A text that…"_s, {5, 20});
  one.setProperty("text", kLong);
  QVERIFY(finds(u"shortened \"A text that…\""_s));
  one.setProperty("text", u"Cleaning. A text that…"_s);
  QCOMPARE(found(), QStringList());
  ui::ElidedLabel byDesign(kLong, nullptr, m_window.get());
  byDesign.setGeometry(0, 60, 80, 30);
  QCOMPARE(found(), QStringList());
}

void TestMisfits::overlapping() {
  labelAt(m_window.get(), QRect(0, 0, 300, 30));
  QLabel* second = labelAt(m_window.get(), QRect(20, 6, 300, 30), u"Another one"_s);
  QVERIFY(finds(u"\"A text that is longer than its room\" on \"Another one\""_s));
  second->move(20, 60);
  QCOMPARE(found(), QStringList());
}

void TestMisfits::whatFloatsIsApart() {
  m_window->resize(400, 80);
  labelAt(m_window.get(), QRect(60, 20, 300, 30));
  ui::Toast toast(m_window.get());
  toast.show(u"Moved"_s, false);
  QCOMPARE(found(), QStringList());
}

void TestMisfits::squeezedWidgets() {
  QHBoxLayout* row = ui::hbox(0);
  m_window->setLayout(row);
  for (const QString& text : {u"1"_s, u"2"_s}) {
    auto* one = new QWidget;
    one->setObjectName(text);
    one->setMinimumWidth(150);
    row->addWidget(one);
  }
  QCOMPARE(found(), QStringList());
  row->itemAt(1)->widget()->move(100, 0);
  QCOMPARE(misfits(m_window.get()), QStringList{u"QWidget on QWidget"_s});
  row->itemAt(1)->widget()->move(300, 0);
  QCOMPARE(misfits(m_window.get()), QStringList{u"QWidget outgrows QWidget"_s});
}

void TestMisfits::contentWiderThanItsArea() {
  QVBoxLayout* column = nullptr;
  QScrollArea* area = ui::scrollPage(&column);
  area->setParent(m_window.get());
  area->setGeometry(0, 0, 300, 200);
  auto* wide = new QWidget;
  wide->setMinimumWidth(200);
  column->addWidget(wide);
  QCOMPARE(found(), QStringList());
  wide->setMinimumWidth(290);
  QVERIFY(finds(u"content of QWidget outgrows it"_s));
}

int main(int argc, char** argv) { return uitest::run<TestMisfits>(argc, argv); }

#include "tst_Misfits.moc"
