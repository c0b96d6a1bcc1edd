/// Name, version and copyright of the program, and the way to its web site.
#pragma once

#include "ui/shell/Overlay.h"

class QVBoxLayout;

namespace ui {

class AboutDialog : public Overlay {
  Q_OBJECT

 public:
  explicit AboutDialog(QWidget* parent);

 private:
  void addIdentity(QVBoxLayout* column);
  void addButtons(QVBoxLayout* column);
};

} // namespace ui
