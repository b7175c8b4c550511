"""The Python package, on real files. VYR_LIBRARY names the library."""
import ast
import datetime
import doctest
import gc
import importlib
import inspect
import pathlib
import pkgutil
import tempfile
import typing
import unittest
import uuid

import vyr
from vyr import (column, date_time, filter, host_list, host_queue, host_registry, html, msxml, name, office_property,
                 programs, search, updates, xml)

MODULES = [vyr] + [importlib.import_module(f"vyr.{found.name}") for found in pkgutil.iter_modules(vyr.__path__)]


def load_tests(loader, tests, pattern):
    for module in MODULES:
        tests.addTests(doctest.DocTestSuite(module))
    return tests


class Package(unittest.TestCase):
    def test_every_operation_has_words_and_hints(self):
        operations = [found for module in MODULES for found in vars(module).values()
                      if inspect.isfunction(found) and found.__module__ == module.__name__ and module.__name__ != "vyr._library"]
        self.assertGreater(len(operations), 200)
        for operation in operations:
            self.assertTrue(operation.__doc__)
            self.assertEqual(set(typing.get_type_hints(operation)),
                             set(inspect.signature(operation).parameters) | {"return"})

    def test_source_is_that_of_python_3_9(self):
        for module in MODULES:
            ast.parse(pathlib.Path(module.__file__).read_text(), feature_version=(3, 9))


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


    def test_many_previews_are_as_one_by_one(self):
        items = [name.Item(dir_path="/ä/", number_text1=text, digits=index % 4, start_number=index, step=-1, index=index,
                           extension=".jpg" if index % 3 else "") for index, text in
                 enumerate(["", "a", "\U0001f600", "\udcff", "x" * 300] * 500)]
        self.assertEqual(name.get_rename_file_paths(items), [name.get_rename_file_path(item) for item in items])
        self.assertEqual(name.get_rename_file_paths([]), [])


class Objects(unittest.TestCase):
    def test_elements_outlive_their_document(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder, "a.xml")
            path.write_text('<list size="2"><item>one</item><item>two</item></list>')
            root = xml.get_root(msxml.load_xml_file(str(path)))
            gc.collect()
            self.assertEqual(xml.get_attribute(root, "size"), "2")
            self.assertEqual([xml.get_text(xml.get_element(root, "item", index))
                              for index in range(xml.count_elements(root, "item"))], ["one", "two"])
            self.assertIsNone(xml.get_element(root, "item", 2))
            self.assertIsNone(msxml.load_xml_file(str(path) + "x"))

    def test_ids_go_both_ways(self):
        handler = office_property.Handler(".x", uuid.UUID("993be281-6695-4ba5-8a2a-7aacbfaab69e"), 1)
        self.assertEqual(office_property.get_class_id(".X", [handler]), handler.clsid)
        self.assertEqual(office_property.get_class_id_item_list([(".doc", 0)]), [office_property.Handler(extension=".doc")])

    def test_value_of_another_type_is_refused(self):
        with self.assertRaises(TypeError):
            office_property.set_dump_props("/none", 2, [], uuid.UUID(int=0))
        for value in (None, True, 5, 2**40, 1.5, "ä", b"a", datetime.datetime.now(datetime.timezone.utc), uuid.UUID(int=1)):
            self.assertEqual(office_property.set_dump_props("/none", 2, value, uuid.UUID(int=0)), 0)

    def test_drain_is_called(self):
        calls = []
        host_queue.set_drain(lambda: calls.append(1))
        gc.collect()
        office_property.get_class_id_item_list([(".doc", 0), (".x", 0)])
        host_queue.set_drain(None)
        office_property.get_class_id_item_list([(".doc", 0)])
        self.assertEqual(len(calls), 2)

    def test_described_list_is_searched(self):
        columns = host_list.create()
        self.assertEqual(host_list.insert_column(columns, 0, "Größe"), 1)
        self.assertEqual(column.get_column_header_item(columns, "größe"), 0)
        self.assertEqual(host_list.destroy(columns), 1)

    def test_missing_hive_is_told_of(self):
        result = host_registry.show_hives(host_registry.HiveFiles(software="/none"))
        self.assertEqual((result.outcome, result.file), (1, "/none"))
        self.assertEqual(programs.get_programs_features_items_list(0, 1), [])


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
