#include "ui/pages/CleanupProgressView.h"

#include "core/fmt.h"
#include "ui/controls/PageHeader.h"
#include "ui/controls/factory.h"
#include "ui/pages/CleanupWords.h"
#include "ui/pages/furniture.h"
#include "ui/visuals/ProgressRing.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace ui {

namespace {
// Lengths in pixels.
constexpr int kSpacing = 16;
constexpr int kMaxWidth = 700;
constexpr int kPathWidth = 640;
} // namespace

CleanupProgressView::CleanupProgressView(QWidget* parent)
    : QWidget(parent), m_ring(new ProgressRing), m_cleanPath(new PathLabel) {
  //: Heading while a cleanup runs
  auto* header = new PageHeader(CleanupWords::tr("Cleaning"));
  //: Small heading over “Cleaning” and “Scanning”
  header->setEyebrow(CleanupWords::tr("In progress"));
  m_ring->success = true;
  m_ring->setAccessibleName(CleanupWords::tr("Cleaning"));
  m_cleanPath->setObjectName("cleanPath"_L1);
  QVBoxLayout* block = vbox(kSpacing);
  block->addWidget(m_ring, 0, Qt::AlignHCenter);
  block->addWidget(m_cleanPath);
  QVBoxLayout* root = vbox();
  setLayout(root);
  root->addWidget(header);
  root->addWidget(centred(block, kMaxWidth), 1);
}

void CleanupProgressView::reset(qint64 total) { setProgress(0, total, {}); }

void CleanupProgressView::setProgress(qint64 done, qint64 total, const QString& path) {
  m_ring->setProgress(total < 1 ? 0 : double(done) / double(total));
  //: Under the size that was cleaned so far; %1: the size of the whole
  m_ring->setText(fmt::bytes(done), CleanupWords::tr("of %1").arg(fmt::bytes(total)));
  if (!path.isEmpty()) m_cleanPath->setPath(path, kPathWidth);
}

} // namespace ui
