#!/usr/bin/env python3
"""Feeds the lints of texts and catalogues what breaks their rule, and what doesn't."""

import unittest

from lintcase import LintCase


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
        'constexpr Text kText = QT_TRANSLATE_NOOP3("Context", "Nothing was cleaned", "Linux");',
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


del LintCase

if __name__ == "__main__":
    unittest.main()
