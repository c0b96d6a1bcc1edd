/// Lets a test that runs as root meet refusals: while it lives the fixture belongs to, and the process acts as, a user
/// without privileges. Does nothing for any other user.
#pragma once

#include "support/FixtureHome.h"

#include <QDirIterator>
#include <QFile>

#include <unistd.h>

class Unprivileged {
 public:
  explicit Unprivileged(const FixtureHome& home) : m_root(home.outside()), m_isRoot(::geteuid() == 0) {
    if (!m_isRoot) return;
    own(kNobody);
    if (::setegid(kNobody) != 0 || ::seteuid(kNobody) != 0) qFatal("cannot drop the privileges");
  }
  ~Unprivileged() {
    if (!m_isRoot) return;
    if (::seteuid(0) != 0 || ::setegid(0) != 0) qFatal("cannot take the privileges back");
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;

  void own(uid_t user) const {
    const auto one = [&](const QString& path) { (void)::lchown(QFile::encodeName(path).constData(), user, user); };
    QDirIterator below(m_root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (below.hasNext()) one(below.next());
    one(m_root);
  }

  QString m_root;
  bool m_isRoot;
};
