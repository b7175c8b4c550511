"""The Python package, on real files. VYR_LIBRARY names the library."""
import datetime
import doctest
import pathlib
import tempfile
import unittest

import vyr
from vyr import date_time, filter, html, name, programs, search, updates


def load_tests(loader, tests, pattern):
    tests.addTests(doctest.DocTestSuite(vyr))
    return tests


class Names(unittest.TestCase):
    def test_records_and_texts_go_both_ways(self):
        self.assertEqual(name.get_folder_format("<Folder>ä\U0001f600"), "\\ä\U0001f600")
        self.assertEqual(programs.get_application_icon('"C:\\a b.exe",-101'), ("C:\\a b.exe", -101))
        self.assertEqual(html.get_h1_pair_tag("", "x" * 5000).count("x"), 5000)

    def test_bytes_that_are_no_utf8_stay(self):
        path = b"/d/\xff.txt".decode(errors="surrogateescape")
        self.assertEqual(name.get_f_name(path), b"\xff".decode(errors="surrogateescape"))

    def test_lists_go_in(self):
        ends_with = filter.Condition(enabled=1, text=".jpg", condition=3)
        self.assertEqual(filter.is_match_name("a.JPG", 0, [ends_with]), 1)
        self.assertEqual(filter.is_match_name("a.png", 0, [ends_with]), 0)
        self.assertEqual(filter.is_already_added("X", ["y", "x"]), 1)
        self.assertEqual(filter.is_already_added("X", []), 0)

    def test_lists_come_out(self):
        items = [updates.Item(1, "first"), updates.Item(-2, "ü")]
        updates.set_update_items_list(items)
        self.assertEqual(updates.get_update_items_list(), items)

    def test_wrong_argument_is_a_value_error(self):
        moment = datetime.datetime(2024, 1, 1)
        search.set_date_time_from_date_time(moment)
        self.assertEqual(search.get_date_time_from_date_time(), moment)
        with self.assertRaisesRegex(ValueError, "wrong argument: list"):
            vyr._library._check(vyr._library._library.vyr_list_release(0))


class Dates(unittest.TestCase):
    def test_dates_are_datetimes(self):
        self.assertEqual(date_time.get_cal_date_time(datetime.datetime(2024, 1, 31, 6), 0, 1, 0),
                         datetime.datetime(2024, 2, 29, 6))

    def test_dates_before_1899_go_both_ways(self):
        for moment in (datetime.datetime(1899, 12, 30), datetime.datetime(1899, 12, 29, 18, 0, 1),
                       datetime.datetime(1600, 5, 6, 7, 8, 9), datetime.datetime(9999, 12, 31, 23, 59, 59)):
            search.set_date_time_to_date_time(moment)
            self.assertEqual(search.get_date_time_to_date_time(), moment)

    def test_date_that_is_not_valid_is_none(self):
        search.set_date_time_to_date_time(None)
        self.assertIsNone(search.get_date_time_to_date_time())

    def test_file_time_has_a_zone(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, "file")
            path.write_text("content")
            moment = datetime.datetime(2020, 2, 3, 4, 5, 6, tzinfo=datetime.timezone.utc)
            self.assertNotEqual(date_time.set_modified_file_date_time(str(path), None, moment, None), 0)
            self.assertEqual(path.stat().st_mtime, moment.timestamp())
            self.assertEqual(date_time.get_selected_file_date_time(str(path), 0, 1), moment)
            self.assertIsNone(date_time.get_selected_file_date_time(str(path), 0, 0))


class Folders(unittest.TestCase):
    def test_records_of_a_copy_are_added(self):
        with tempfile.TemporaryDirectory() as folder:
            source, target = pathlib.Path(folder, "from"), pathlib.Path(folder, "to")
            (source / "inner").mkdir(parents=True)
            (source / "inner" / "file").write_text("content")
            target.mkdir()
            records = []
            self.assertEqual(name.copy_folder(str(source), str(target), records), 1)
            self.assertEqual([record.destination_path for record in records], [str(target / "inner")])
            self.assertIsInstance(records[0].date_modified, datetime.datetime)
            self.assertEqual(name.copy_folder(str(source), str(target), None), 1)


if __name__ == "__main__":
    unittest.main()
