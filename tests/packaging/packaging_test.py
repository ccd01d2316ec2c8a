#!/usr/bin/env python3
"""Looks at what an installation brings to the desktop: packaging_test.py [unittest arguments]."""

import configparser
import datetime
import email.utils
import pathlib
import re
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
ENTRY = ROOT / "src/resources/desktop/glosaria.desktop"
METAINFO = ROOT / "packaging/org.example.glosaria.metainfo.xml"
MANUAL = ROOT / "packaging/glosaria.1"


class AgreementCase(unittest.TestCase):
    """What has to be said in several files is the same in all."""

    def setUp(self):
        self.metainfo = xml.etree.ElementTree.parse(METAINFO).getroot()

    def test_version_and_date_of_the_newest_release(self):
        project = re.search(r"project\(Glosaria VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())
        changelog = re.search(
            r"\Aglosaria \((\S+)\).*?^ -- .*?  (.*?)$", (ROOT / "packaging/debian/changelog").read_text(), re.DOTALL | re.M
        )
        date = email.utils.parsedate_to_datetime(changelog[2]).date()
        release = self.metainfo.find("releases/release")
        self.assertEqual(changelog[1], project[1])
        self.assertEqual((release.get("version"), datetime.date.fromisoformat(release.get("date"))), (project[1], date))

    def test_metainfo_and_desktop_entry(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(ENTRY)
        entry = entry["Desktop Entry"]
        for key, path in (
            ("Name", "name"), ("Comment", "summary"), ("Icon", "icon"), ("TryExec", "provides/binary"),
            ("MimeType", "provides/mediatype"), ("Categories", "categories/category"),
        ):
            self.assertEqual(entry[key].strip(";").split(";"), [item.text for item in self.metainfo.findall(path)], key)
        self.assertEqual(self.metainfo.findtext("launchable"), ENTRY.name)

    def test_manual_and_usage(self):
        usage = re.search(r"^12600\t(.*)$", (ROOT / "src/resources/strings.txt").read_text(), re.M)[1]
        options = set(re.findall(r"--([a-z-]+)", usage))
        self.assertGreater(len(options), 1)
        self.assertEqual(set(re.findall(r"^\.It Fl -([a-z-]+)(?: Ar .+)?$", MANUAL.read_text(), re.M)), options)


if __name__ == "__main__":
    unittest.main(verbosity=2)
