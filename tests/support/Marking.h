/// A language that shows which context every text was asked for in.
#pragma once

#include <QTranslator>

/// Puts the context of a text in brackets before it.
class Marking : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* source, const char* /*what*/,
                                  int /*n*/) const override {
    return QStringLiteral("[%1]%2").arg(QLatin1StringView(context), QString::fromUtf8(source));
  }
};
