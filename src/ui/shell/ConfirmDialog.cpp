#include "ui/shell/ConfirmDialog.h"

#include "ui/controls/Button.h"
#include "ui/controls/factory.h"
#include "ui/shell/dialog.h"

#include <QLabel>
#include <QVBoxLayout>

namespace ui {

ConfirmDialog::ConfirmDialog(QWidget* parent, const QString& title, const QString& body, const QString& confirmText,
                             bool danger)
    : Overlay(parent) {
  setAccessibleName(title);
  QVBoxLayout* column = dialogBody(this);
  column->addWidget(label(title, "h2"));
  QLabel* text = label(body, "sub");
  text->setWordWrap(true);
  column->addWidget(text);
  Button* confirm = dialogFooter(this, confirmText, danger ? "danger" : "primary");
  connect(confirm, &QPushButton::clicked, this, [this] {
    emit accepted();
    close();
  });
}

} // namespace ui
