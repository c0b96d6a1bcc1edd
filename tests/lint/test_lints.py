#!/usr/bin/env python3
"""Feeds each lint sources that break its rule, line by line, and sources that don't. Those of texts: test_text_lints.py."""

import subprocess
import sys
import unittest

from lintcase import HERE, LintCase


class Layers(LintCase):
    lint = "layers"

    def test_an_include_that_points_up_is_found_with_file_line_and_layers(self):
        self.write("src/core/fs.h", '#pragma once\n')
        self.write("src/engines/Scanner.h", '#pragma once\n#include "core/fs.h"\n')
        self.write("src/core/fs.cpp", '#include "core/fs.h"\n\n#include "engines/Scanner.h"\n')
        self.assert_found("src/core/fs.cpp:3")
        self.assertIn("engines, which core may not include", self.run_lint()[1][0])

    def test_every_layer_may_include_what_lies_below_and_nothing_else(self):
        layers = [
            "core/fs.h",
            "app/records.h",
            "engines/Scanner.h",
            "app/AppState.h",
            "ui/i18n.h",
            "ui/Theme.h",
            "ui/pages/Page.h",
            "ui/shell/MainWindow.h",
        ]
        for level, name in enumerate(layers):
            for other in layers:
                self.write("src/" + other, "#pragma once\n")
            self.write("src/" + name, "".join(f'#include "{other}"\n' for other in layers))
            if level + 1 < len(layers):
                self.assert_found(*[f"src/{name}:{line}" for line in range(level + 2, len(layers) + 1)])
            else:
                self.assert_clean()

    def test_updates_know_only_core_and_only_the_shell_knows_them(self):
        for name in ["core/fs.h", "app/AppState.h", "ui/Theme.h", "update/Updater.h"]:
            self.write("src/" + name, "#pragma once\n")
        self.write("src/update/Updater.cpp", '#include "core/fs.h"\n#include "app/AppState.h"\n')
        self.write("src/ui/Theme.cpp", '#include "update/Updater.h"\n')
        self.write("src/ui/shell/MainWindow.cpp", '#include "update/Updater.h"\n')
        self.assert_found("src/ui/Theme.cpp:1", "src/update/Updater.cpp:2")

    def test_the_terminal_program_stays_clear_of_the_window(self):
        self.write("src/ui/Theme.h", "")
        self.write("src/ui/i18n.h", "")
        self.write("src/cli/main.cpp", '#include "ui/i18n.h"\n#  include "ui/Theme.h"\n')
        self.assert_found("src/cli/main.cpp:2")

    def test_the_gallery_shows_everything_and_nothing_knows_of_it(self):
        for name in ["ui/Theme.h", "ui/pages/Page.h", "ui/shell/MainWindow.h"]:
            self.write("src/" + name, "")
        self.write("src/gallery/Sheet.h", '#include "ui/Theme.h"\n#include "ui/pages/Page.h"\n#include "ui/shell/MainWindow.h"\n')
        self.assert_clean()
        self.write("src/ui/pages/Page.cpp", '#include "gallery/Sheet.h"\n')
        self.write("src/ui/shell/Window.cpp", '#include "gallery/Sheet.h"\n')
        self.assert_found("src/ui/pages/Page.cpp:1", "src/ui/shell/Window.cpp:1")

    def test_an_include_that_is_not_by_its_path_from_src_is_found(self):
        self.write("src/core/fs.h", "")
        self.write("src/core/fs.cpp", '#include "fs.h"\n#include "../core/fs.h"\n#include "gone.h"\n')
        self.assert_found("src/core/fs.cpp:1", "src/core/fs.cpp:2", "src/core/fs.cpp:3")

    def test_comments_generated_files_and_the_system_are_let_be(self):
        self.write("src/core/a.cpp", '// #include "engines/Scanner.h"\n/*\n#include "x.h"\n*/\n#include <QString>\n#include "a.moc"\n')
        self.assert_clean()


class Removal(LintCase):
    lint = "removal"

    BAD = [
        "  ::unlink(path);",
        "  if (unlink(path) != 0) return;",
        "  return unlinkat(fd, name, 0);",
        "  (void)::rmdir(path);",
        "  a && rename(a, b);",
        "  if (0 > renameat(1, a, 2, b)) return;",
        "  std::remove(path);",
        "  sys::renameNoReplace(1, a, 2, b);",
        "  syscall(SYS_renameat2, 1, a, 2, b, 0);",
        "  QFile::remove(path);",
        "  QFile::moveToTrash(path);",
        "  QFile(path).remove();",
        "  QDir().rmdir(path);",
        "  QDir(path).removeRecursively();",
        "  folder().removeRecursively();",
        "  std::filesystem::remove_all(path);",
    ]
    GOOD = [
        "  list.remove(3);",
        "  text->remove(QChar(u'x'));",
        "  settings.moveToTrash();",
        "  void remove(const Target& target);",
        "  std::unique_ptr<int> rename(int a);",
        "  Remover::remove(target);",
        "  // unlink(path)",
        '  log("unlink(path)");',
        '  log(R"(rmdir("a"))");',
        "  removed(path);",
        "  QFile::exists(path);",
        "  QString clean = QDir::cleanPath(path); clean.remove(0, 3);",
        "  std::remove_if(a, b, c);",
    ]

    def test_every_way_to_remove_or_move_is_found(self):
        self.write("src/engines/Bad.cpp", "\n".join(["void f() {", *self.BAD, "}"]))
        self.assert_found(*[f"src/engines/Bad.cpp:{line}" for line in range(2, len(self.BAD) + 2)])

    def test_a_file_object_is_known_by_its_declaration(self):
        self.write("src/app/a.h", "struct A {\n  QFile m_file;\n};\n")
        self.write(
            "src/app/a.cpp",
            "void f(QDir& dir) {\n  QFile one(path);\n  one.remove();\n  dir.rmdir(name);\n  m_file.rename(x);\n"
            "  auto two = QFile(path);\n  two.remove();\n  auto three = std::make_unique<QFile>(path);\n  three->remove();\n}\n",
        )
        self.write("src/app/b.cpp", "void f(QString one) {\n  one.remove(3);\n}\n")
        self.assert_found(*[f"src/app/a.cpp:{line}" for line in (3, 4, 5, 7, 9)])

    def test_what_only_looks_like_it_is_let_be(self):
        self.write("src/engines/good.cpp", "\n".join(self.GOOD))
        self.assert_clean()

    def test_the_primitive_may(self):
        for name in ["core/removal.cpp", "core/removal_retry.cpp", "core/trash.h", "core/linux/trash.cpp", "core/macos/trash.mm"]:
            self.write("src/" + name, "void f() { ::unlink(path); }\n")
        self.assert_clean()

    def test_what_is_allowed_is_allowed_there_alone(self):
        self.write("src/core/linux/sys.cpp", "int renameNoReplace(int a) { return renameat2(a); }\nint f() { return rmdir(p); }\n")
        self.write("src/core/fs.cpp", "int f() { return renameat2(a); }\n")
        self.assert_found("src/core/fs.cpp:1", "src/core/linux/sys.cpp:2")


class Systems(LintCase):
    lint = "systems"

    def test_conditions_on_the_system_are_found(self):
        words = ["Q_OS_MACOS", "Q_OS_LINUX", "Q_OS_WIN", "__APPLE__", "__linux__", "_WIN32", "TARGET_OS_MAC"]
        self.write("src/core/fs.cpp", "".join(f"#if defined({word})\n#endif\n" for word in words))
        self.assert_found(*[f"src/core/fs.cpp:{2 * i + 1}" for i in range(len(words))])

    def test_folders_of_a_system_may_and_comments_do_not_count(self):
        for folder in ["core/linux", "core/macos", "ui/shell/macos", "ui/shell/macos/deeper"]:
            self.write(f"src/{folder}/a.cpp", "#ifdef __APPLE__\n#endif\n")
        self.write("src/core/a.cpp", "// not with Q_OS_MACOS\nint n = 0; /* __linux__ */\n")
        self.assert_clean()

    def test_a_file_named_like_a_system_is_no_folder_of_it(self):
        self.write("src/core/linux.cpp", "#ifdef __linux__\n#endif\n")
        self.assert_found("src/core/linux.cpp:1")


class Shape(LintCase):
    lint = "shape"

    def test_a_file_splits_before_it_is_long(self):
        self.write("src/core/short.cpp", "\n" * 500)
        self.write("src/core/long.cpp", "\n" * 501)
        self.assert_found("src/core/long.cpp:501")

    def test_a_guessed_wait_is_found_unless_it_says_why(self):
        self.write("tests/core/tst_a.cpp", "QTest::qWait(10);\nQTRY_VERIFY(x);\n// qWait(1)\nQThread::msleep(3);  // waits because the clock must move\n")
        self.assert_found("tests/core/tst_a.cpp:1")


class Colours(LintCase):
    lint = "colours"

    BAD = [
        'const QColor c(u"#6366f1"_s);',
        'label->setStyleSheet(u"color: #fff;"_s);',
        'auto c = QColor("#80ffffff");',
        "constexpr QRgb kIndigo = 0xff6366f1;",
        "const auto c = QColor(0x6366f1);",
        "const QColor c = QColor(99, 102, 241);",
        "const QColor c = QColor(99, 102, 241, 130);",
        "const QColor c{99, 102, 241};",
        "auto d = QColor{99, 102, 241};",
        "auto c = QColor::fromRgb(99, 102, 241);",
        "auto c = QColor::fromRgbF(0.5f, 0.1f, 0.2f);",
        "auto c = qRgba(1, 2, 3, 4);",
        "painter->setPen(Qt::red);",
        "painter->setPen(Qt::darkGray);",
        "auto c = QColor(\"#6366f1\");  // hue: no constant",
    ]
    GOOD = [
        "painter->setPen(theme.accent);",
        "painter->setPen(Qt::white);",
        "painter->setBrush(Qt::transparent);",
        "// the same as #6366f1, or QColor(99, 102, 241)",
        "constexpr QRgb kIndigo = 0xff6366f1;  // hue: the orb's first arc",
        "constexpr QRgb kHues[] = {  // hue: of the kinds of files",
        "    0xff6366f1,",
        "    0xff22d3ee,",
        "};",
        'auto text = u"&#8230; and #hash and issue #12"_s;',
        "auto c = QColor(red, green, blue);",
        "int mask = 0xff;",
        "auto c = withAlpha(theme.text, 60);",
    ]

    def test_every_way_to_a_colour_of_its_own_is_found(self):
        self.write("src/ui/controls/Bad.cpp", "\n".join(self.BAD))
        self.assert_found(*[f"src/ui/controls/Bad.cpp:{line}" for line in range(1, len(self.BAD) + 1)])

    def test_what_comes_from_the_theme_or_is_a_named_hue_is_let_be(self):
        self.write("src/ui/controls/Good.cpp", "\n".join(self.GOOD))
        self.assert_clean()

    def test_a_table_of_hues_ends_where_it_closes(self):
        self.write("src/ui/a.cpp", "constexpr A kHues[] = {  // hue: all\n  {0xff6366f1},\n};\nauto x = 0xff6366f1;\n")
        self.assert_found("src/ui/a.cpp:4")

    def test_the_theme_and_what_lies_below_the_window_may(self):
        for name in ["ui/Theme.cpp", "ui/StyleSheet.cpp", "engines/categories_mac.cpp"]:
            self.write("src/" + name, 'auto c = "#6366f1"; auto d = QColor(1, 2, 3);\n')
        self.assert_clean()

    def test_numbers_without_a_name_are_found_where_something_is_painted(self):
        self.write(
            "src/ui/a.cpp",
            "void A::paintEvent(QPaintEvent*) {\n  QPainter painter(this);\n  painter.drawLine(0, 1, 2, 14);\n"
            "  if (x) { f(3); }\n  g(0.5, 0.25, 4.f, .5, 1e3, 0x10);\n}\n"
            "void body(QPainter* painter, const QRectF& r) {\n  painter->translate(7, 0);\n}\n"
            "auto l = [](QPainter& painter) -> void {\n  painter.scale(3, 1);\n};\n",
        )
        findings = self.run_lint()[1][:-1]
        self.assertEqual(
            [line.split(": ")[0].rsplit(":")[1] + " " + line.rsplit(", ")[1] for line in findings],
            ["3 14", "4 3", "5 0.25", "5 0x10", "5 1e3", "5 4.f", "8 7", "11 3"],
        )

    def test_named_numbers_and_other_functions_are_let_be(self):
        self.write(
            "src/ui/a.cpp",
            "void A::paintEvent(QPaintEvent*) {\n  static constexpr int kWidth = 14;\n"
            "  static constexpr Glow kGlows[] = {{900, 500},\n                                   {800, 600}};\n"
            "  draw(text2, kWidth, x1, -1, 2.0, -0.5);  // 14 wide\n}\n"
            "QSize A::sizeHint() const { return {40, 22}; }\nvoid A::paintEvent(QPaintEvent*);\nint n = 17;\n",
        )
        self.assert_clean()


class Common(LintCase):
    lint = "systems"

    def test_a_folder_without_sources_is_no_success(self):
        (self.root / "src").rmdir()
        command = [sys.executable, HERE / "systems.py", self.root]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 1)
        self.assertIn("no src/", done.stderr)

    def test_what_hides_in_texts_is_told_from_what_does_not(self):
        self.write(
            "src/core/a.cpp",
            'auto a = "/*";\n#ifdef __linux__\n#endif\nauto b = "*/";\nauto c = \'"\';\n#ifdef _WIN32\n#endif\n'
            "int n = 1'000'000;\n#ifdef __APPLE__\n#endif\n",
        )
        self.assert_found("src/core/a.cpp:2", "src/core/a.cpp:6", "src/core/a.cpp:9")


del LintCase

if __name__ == "__main__":
    unittest.main()
