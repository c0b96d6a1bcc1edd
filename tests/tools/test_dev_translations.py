#!/usr/bin/env python3
"""./dev translations brings new texts in, takes gone ones out, keeps what is translated, and can tell without writing."""

import importlib.machinery
import importlib.util
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(os.environ.get("TARNWICK_SOURCE", pathlib.Path(__file__).resolve().parents[2]))
PROGRAM = SOURCE / "tools/dev/translations"

LANGUAGES = """
  static const QList<Language> all = {
      {u"en"_s, u"English"_s}, {u"ru"_s, u"Русский"_s},
      {u"pt_BR"_s, u"Português (Brasil)"_s},
  };
"""
WORDS = """
struct Words {
  Q_DECLARE_TR_FUNCTIONS(Page)
};
QString text(int n) {
  %s
  return Words::tr("%%1 files", nullptr, n);
}
"""
FINISHED = "<translation>Да</translation>"


def program():
    loader = importlib.machinery.SourceFileLoader("translations", str(PROGRAM))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("translations", loader))
    loader.exec_module(module)
    return module


class Translations(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        (self.root / "src/ui").mkdir(parents=True)
        (self.root / "resources/i18n").mkdir(parents=True)
        (self.root / "src/ui/i18n.cpp").write_text(LANGUAGES, encoding="utf-8")
        self.say('Words::tr("Yes");')

    def say(self, text: str):
        (self.root / "src/page.cpp").write_text(WORDS % text, encoding="utf-8")

    def run_program(self, *arguments: str) -> subprocess.CompletedProcess:
        command = [sys.executable, "-B", PROGRAM, "--root", self.root, *arguments]
        return subprocess.run(command, capture_output=True, text=True, check=False)

    def renew(self):
        done = self.run_program()
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))

    def path(self, code: str) -> pathlib.Path:
        return self.root / f"resources/i18n/tarnwick_{code}.ts"

    def text(self, code: str) -> str:
        return self.path(code).read_text(encoding="utf-8")

    def translate(self):
        """Into Russian, by hand."""
        begin, _, end = self.text("ru").partition('<translation type="unfinished"></translation>')
        self.path("ru").write_text(begin + FINISHED + end, encoding="utf-8")


@unittest.skipUnless(program().find_lupdate(), "lupdate is not installed")
class WithLupdate(Translations):
    def test_each_language_of_the_program_gets_a_catalogue_with_its_number_of_forms(self):
        self.renew()
        self.assertEqual(sorted(path.name for path in (self.root / "resources/i18n").iterdir()),
                         ["tarnwick_en.ts", "tarnwick_pt_BR.ts", "tarnwick_ru.ts"])
        self.assertEqual([self.text(code).count("<numerusform>") for code in ("en", "pt_BR", "ru")], [2, 2, 3])
        self.assertNotIn("<location", self.text("ru"))

    def test_english_has_only_its_plurals(self):
        self.renew()
        self.assertEqual(self.text("en").count("<source>"), 1)
        self.assertIn("<source>%1 files</source>", self.text("en"))

    def test_translations_stay_new_texts_come_and_gone_ones_go(self):
        self.renew()
        self.translate()
        self.say('Words::tr("Yes"); Words::tr("A wholly different sentence");')
        self.renew()
        self.assertIn(FINISHED, self.text("ru"))
        self.assertIn("A wholly different sentence", self.text("ru"))
        self.say("")
        self.renew()
        self.assertNotIn("Yes", self.text("ru"))
        self.assertNotIn("Да", self.text("ru"))

    def test_a_check_names_what_would_change_and_writes_nothing(self):
        self.renew()
        self.translate()
        done = self.run_program("--check")
        self.assertEqual((done.returncode, done.stdout), (0, ""))
        before = self.text("ru")
        self.say('Words::tr("Yes"); Words::tr("A wholly different sentence");')
        done = self.run_program("--check")
        self.assertEqual(done.returncode, 1)
        self.assertEqual([line.split(":")[0] for line in done.stdout.splitlines()],
                         ["resources/i18n/tarnwick_ru.ts", "resources/i18n/tarnwick_pt_BR.ts"])
        self.assertEqual(self.text("ru"), before)
        self.path("en").unlink()
        self.assertIn("tarnwick_en.ts", self.run_program("--check").stdout)
        self.assertFalse(self.path("en").exists())

    def test_a_text_that_lupdate_can_not_place_ends_it(self):
        self.say('return Nowhere().tr("Lost");\n}\nQString lost() {\n  return tr("No context");')
        done = self.run_program()
        self.assertEqual(done.returncode, 1)
        self.assertIn("lupdate, for", done.stderr)


class WithoutLupdate(Translations):
    def test_a_check_is_skipped_and_says_why(self):
        done = self.run_program("--check", "--lupdate", str(self.root / "none"))
        self.assertEqual(done.returncode, 77)
        self.assertIn("lupdate is not installed", done.stdout)

    def test_renewing_fails(self):
        self.assertEqual(self.run_program("--lupdate", str(self.root / "none")).returncode, 1)

    def test_another_layout_is_the_same_catalogue_and_another_word_is_not(self):
        module = program()
        one, other, wrong = (self.root / name for name in ("one.ts", "other.ts", "wrong.ts"))
        line = "<TS><context><name>A</name><message><source>x</source><translation>y</translation></message></context></TS>"
        one.write_text(line)
        other.write_text(line.replace("><", ">\n <"))
        wrong.write_text(line.replace("y", "z"))
        self.assertTrue(module.is_same(one, other, byte_for_byte=False))
        self.assertFalse(module.is_same(one, other, byte_for_byte=True))
        self.assertFalse(module.is_same(one, wrong, byte_for_byte=False))


if __name__ == "__main__":
    unittest.main()
