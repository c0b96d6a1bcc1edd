#!/usr/bin/env python3
"""Feeds each lint sources that break its rule, line by line, and sources that don't."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent


class LintCase(unittest.TestCase):
    """Builds a small repository and runs one lint over it."""

    lint = ""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        (self.root / "src").mkdir()

    def write(self, name: str, text: str):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def run_lint(self) -> tuple[int, list[str]]:
        command = [sys.executable, HERE / f"{self.lint}.py", self.root]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        self.assertEqual(done.stderr, "")
        return done.returncode, done.stdout.splitlines()

    def assert_clean(self):
        self.assertEqual(self.run_lint(), (0, []))

    def assert_found(self, *places: str):
        """Exactly these places, as FILE:LINE, are found, and the rule is told."""
        status, lines = self.run_lint()
        self.assertEqual(status, 1)
        self.assertEqual([line.split(": ")[0] for line in lines[:-1]], list(places), lines)
        self.assertTrue(lines[-1].startswith("Rule: "))


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


class Untranslated(LintCase):
    lint = "untranslated"

    BAD = [
        'auto text = u"Nothing was cleaned"_s;',
        'auto text = QStringLiteral("Ready, steady");',
        'auto text = "Cleaned"_L1;',
        'auto text = u"%1 files"_s + u"<b>%2 more files</b>"_s;',
        'auto text = tr("Yes").arg(u"two words"_s);',
        'title->setText(u"found"_s);',
        'auto* tip = label("%1 found");',
        'auto* ok = new Button("ok", "primary");',
        'complain(u"no"_s);',
        'auto text = R"(Raw words here)";',
    ]
    GOOD = [
        'auto text = tr("Nothing was cleaned");',
        'auto text = Words::tr("Nothing was cleaned in %1 of "\n "these files", nullptr, plural(n)).arg(x);',
        'auto text = QCoreApplication::translate("Context", "Nothing was cleaned");',
        'constexpr const char* kText = QT_TRANSLATE_NOOP("Context", "Nothing was cleaned");',
        '#include "Some/Thing of ours.h"',
        '// "Nothing was cleaned"',
        'label->setObjectName("detailValue"_L1);',
        'auto text = u"%1 · %2"_s + u"…"_s + u"\\n"_s + u"—"_s;',
        'auto path = u".Trash"_s + u"/usr/Share"_s;',
        'label->setText(u"—"_s);',
        'auto* tip = label(tr("%1 found"), "caption");',
        'label->setText(text);',
    ]

    def test_words_that_do_not_go_through_translation_are_found(self):
        for number, line in enumerate(self.BAD):
            self.write(f"src/ui/pages/bad{number:02}.cpp", line + "\n")
        found = [line.split(":")[0] for line in self.run_lint()[1][:-1]]
        self.assertEqual(sorted(set(found)), [f"src/ui/pages/bad{number:02}.cpp" for number in range(len(self.BAD))])

    def test_the_line_and_the_words_are_told(self):
        self.write("src/cli/a.cpp", 'int n;\nauto text = u"Nothing was cleaned"_s;\n')
        self.assert_found("src/cli/a.cpp:2")
        self.assertIn('"Nothing was cleaned"', self.run_lint()[1][0])

    def test_what_is_translated_or_no_words_is_let_be(self):
        self.write("src/ui/good.cpp", "\n".join(self.GOOD))
        self.write("src/gallery/a.cpp", 'auto text = u"Nothing was cleaned"_s;\n')  # for developers
        self.assert_clean()

    def test_what_is_literal_by_design_is_let_be_in_its_own_place_alone(self):
        self.write("src/engines/CleanLog.cpp", 'm_stream << "in use or access denied";\n')
        self.write("src/ui/pages/LargeFilesModel.cpp", 'auto head = "Last opened"_L1;\nauto other = "Opened last"_L1;\n')
        self.write("src/ui/pages/LargeFilesTable.cpp", 'auto head = "Last opened"_L1;\n')
        self.assert_found("src/ui/pages/LargeFilesModel.cpp:2", "src/ui/pages/LargeFilesTable.cpp:1")


class Catalogues(LintCase):
    lint = "catalogues"

    CODES = ["en", "zh_CN", "zh_TW", "ja", "ko", "es", "fr", "de", "pt_BR", "ru"]

    def setUp(self):
        super().setUp()
        self.know(self.CODES)
        self.build(self.CODES)
        for code in self.CODES:
            self.say(code)
            self.write(f"resources/i18n/glossary/{code}.md", "terms")

    def know(self, codes: list[str]):
        self.write("src/ui/i18n.cpp", "".join(f'{{u"{code}"_s, u"Name"_s}}, ' for code in codes))

    def build(self, codes: list[str]):
        self.write("src/ui/CMakeLists.txt", f"set(languages {' '.join(codes)})\n")

    def say(self, code: str, *messages: str, language: str = ""):
        """Writes a catalogue of these messages."""
        language = language or ("en_US" if code == "en" else code)
        body = "\n".join(["<context>", *messages, "</context>"])
        self.write(f"resources/i18n/tarnwick_{code}.ts", f'<TS version="2.1" language="{language}">\n{body}\n</TS>\n')

    @staticmethod
    def message(source: str, *forms: str, state: str = "", counts: bool = False) -> str:
        state = f' type="{state}"' if state else ""
        inner = "".join(f"<numerusform>{form}</numerusform>" for form in forms) if counts else forms[0]
        numerus = ' numerus="yes"' if counts else ""
        return f"<message{numerus}>\n<source>{source}</source>\n<translation{state}>{inner}</translation>\n</message>"

    def assert_said(self, code: str, message: str, *complaints: str):
        """These complaints, and no other, are heard of a catalogue with this message."""
        self.say(code, message)
        status, lines = self.run_lint()
        self.assertEqual(status, 1 if complaints else 0, (message, lines))
        self.assertEqual(len(lines[:-1]), len(complaints), lines)
        for line, complaint in zip(lines, complaints):
            self.assertTrue(line.startswith(f"resources/i18n/tarnwick_{code}.ts:3: "), line)
            self.assertIn(complaint, line)
        self.say(code)

    def test_languages_catalogues_and_what_is_compiled_are_the_same(self):
        self.assert_clean()
        self.build([code for code in self.CODES if code != "ko"])
        self.assert_found("src/ui/CMakeLists.txt:1")
        self.build(self.CODES)
        (self.root / "resources/i18n/tarnwick_ko.ts").unlink()
        self.say("nl")
        self.assert_found("resources/i18n/tarnwick_ko.ts:1", "resources/i18n/tarnwick_nl.ts:1")
        self.say("ko", language="ja")
        (self.root / "resources/i18n/tarnwick_nl.ts").unlink()
        self.assert_found("resources/i18n/tarnwick_ko.ts:1")
        self.say("ko")
        (self.root / "resources/i18n/glossary/ko.md").unlink()
        self.assert_found("resources/i18n/glossary/ko.md:1")

    def test_a_language_whose_forms_are_not_known_is_found(self):
        self.know([*self.CODES, "nl"])
        self.build([*self.CODES, "nl"])
        self.say("nl")
        self.write("resources/i18n/glossary/nl.md", "terms")
        self.assert_found("tests/lint/catalogues.py:1")

    def test_places_in_the_sources_are_found(self):
        self.say("de", '<message>\n<location filename="a.cpp" line="3"/>\n<source>A</source>\n<translation>B</translation></message>')
        self.assert_found("resources/i18n/tarnwick_de.ts:4")

    def test_what_is_not_translated_is_found(self):
        for state in ("unfinished", "vanished", "obsolete"):
            self.assert_said("de", self.message("Yes", "Ja", state=state), f"'Yes' is {state}")
        self.assert_said("de", self.message("Yes", ""), "is empty")
        self.assert_said("de", "<message>\n<source>Yes</source>\n<translation/>\n</message>", "is empty")
        self.assert_said("de", "<message>\n<source>Yes</source>\n</message>", "is empty")
        self.assert_said("de", self.message("%n days", "%n Tag", "", counts=True), "is empty")
        self.assert_said("de", self.message("Yes", "Ja"))

    def test_each_language_has_its_number_of_forms(self):
        for code, number in {"en": 2, "zh_CN": 1, "ko": 1, "fr": 2, "pt_BR": 2, "ru": 3}.items():
            self.assert_said(code, self.message("%n", *["%n"] * number, counts=True))
            for wrong in (number - 1, number + 1):
                if wrong:
                    message = self.message("%n", *["%n"] * wrong, counts=True)
                    self.assert_said(code, message, f"has {wrong} forms for {number}")

    def test_placeholders_are_the_same(self):
        self.assert_said("de", self.message("%1 of %2", "%2, davon %1"))
        self.assert_said("de", self.message("%1 and %1", "zweimal %1"))
        self.assert_said("de", self.message("%1 of %2", "%1 von"), "has the placeholders %1 for %1 %2")
        self.assert_said("de", self.message("Yes", "Ja %1"), "has the placeholders %1 for none")
        self.assert_said("de", self.message("%Ln files", "%Ln Datei", "Dateien", counts=True), "for %n")

    def test_only_a_form_for_exactly_one_may_leave_the_count_out(self):
        self.assert_said("de", self.message("%Ln files", "Eine Datei", "%Ln Dateien", counts=True))
        self.assert_said("fr", self.message("%Ln files", "Un fichier", "%Ln fichiers", counts=True), "for %n")
        self.assert_said("ru", self.message("%n", "a", "%n", "%n", counts=True), "for %n")
        # What is put in with arg() must have its place.
        self.assert_said("de", self.message("%1 files", "Eine Datei", "%1 Dateien", counts=True), "for %1")

    def test_tags_and_their_attributes_are_the_same(self):
        tagged = "&lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt; left"
        self.assert_said("de", self.message(tagged, "noch &lt;b style=&apos;color:%1&apos;&gt;%2&lt;/b&gt;"))
        self.assert_said("de", self.message(tagged, "noch &lt;b style=&apos;color: %1&apos;&gt;%2&lt;/b&gt;"), "has other tags")
        self.assert_said("de", self.message("&lt;b&gt;A&lt;/b&gt;", "A"), "has other tags")
        self.assert_said("de", self.message("A", "&lt;br&gt;A"), "has other tags")

    def test_accelerators_are_not_lost(self):
        self.assert_said("de", self.message("&amp;Open", "Öffnen"), "has other accelerators")
        self.assert_said("de", self.message("&amp;Open", "Öff&amp;nen"))
        self.assert_said("de", self.message("Logs &amp; reports", "Protokolle und Berichte"))

    def test_blanks_at_the_edges_stay(self):
        self.assert_said("de", self.message(" · more", "· mehr"), "begins without a blank")
        self.assert_said("de", self.message("more", "mehr "), "ends with a blank")
        self.assert_said("de", self.message(" · more", " · mehr"))
        self.assert_said("zh_CN", self.message(" — always.", "——总是。"))
        self.assert_said("zh_CN", self.message("always", " 总是"), "begins with a blank")

    def test_endings_stay_in_the_form_of_the_language(self):
        for source, code, form in [
            ("Looking…", "ru", "Поиск…"), ("Done.", "ja", "完了。"), ("Done.", "de", "Fertig."), ("Log: ", "de", "Protokoll: "),
            ("Sure?", "zh_TW", "確定？"), ("Sure?", "fr", "Vraiment\u00a0?"), ("Off", "ru", "Выкл."), ("&lt;b&gt;Done.&lt;/b&gt;", "de", "&lt;b&gt;Fertig.&lt;/b&gt;"),
        ]:
            self.assert_said(code, self.message(source, form))
        self.assert_said("ru", self.message("Looking…", "Поиск..."), "doesn't end with …")
        self.assert_said("de", self.message("Done.", "Fertig"), "doesn't end with .")
        self.assert_said("de", self.message("Done", "Fertig."), "ends with .")
        self.assert_said("ja", self.message("Done", "完了。"), "ends with 。")
        self.assert_said("de", self.message("Log:", "Protokoll?"), "doesn't end with :")

    def test_marks_are_those_of_the_language(self):
        self.assert_said("fr", self.message("Log: %1", "Journal : %1"), "no protected blank")
        self.assert_said("fr", self.message("Log: %1", "Journal\u00a0: %1 sur 12:30, «\u00a0oui\u00a0»"))
        self.assert_said("fr", self.message("“yes”", "« oui »"), "no protected blank")
        self.assert_said("de", self.message("“yes”", "“ja”"), "marks of quotation")
        self.assert_said("de", self.message("“yes”", "„ja“"))
        self.assert_said("ru", self.message("“yes”", "“да”"), "marks of quotation")
        self.assert_said("zh_CN", self.message("Yes, %1", "是, %1"), "a narrow mark")
        self.assert_said("ja", self.message("Yes, %1", "はい、%1"))
        self.assert_said("ja", self.message("Yes.no", "はい:いいえ"), "a narrow mark")


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
