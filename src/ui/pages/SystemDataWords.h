/// What the System Data page says, in the words of the host.
#pragma once

#include "app/records.h"

#include <QCoreApplication>

namespace ui {

struct SystemDataWords {
  Q_DECLARE_TR_FUNCTIONS(SystemDataPage)

 public:
  /// How much an item holds. Where something was refused it is a lower bound, or nothing is known at all.
  static QString sizeOf(const SystemDataItem& item);
  /// What stands below its title; empty for nothing.
  static QString detailOf(const SystemDataItem& item);
  /// Heading of the items that the user can't do anything about.
  static QString managed();
  /// Why the total isn't what else is told of the disk; rich text.
  static QString explanation();

  /// What is asked before something destructive.
  struct Question {
    QString title;
    QString body;
    QString confirm;
  };
  static Question questionFor(const SystemDataItem& item);
};

} // namespace ui
