#!/usr/bin/env python3
"""Writes the seed files that hold the vocabularies of reference/lists.csv.

Each vocabulary is one column of a sparse table: a row fills that column and leaves the others empty, since
every list is read and edited by itself. Run it in this folder after a change of lists.csv; the other seed
files are written by hand and are not touched.
"""

import csv
from pathlib import Path

HERE = Path(__file__).resolve().parent

# vocabulary -> column; the order is that of the table
OTHER = ["ADDTYPE", "JOBTITLE", "PRODUCT", "STATUS", "CompSufix", "USER1", "USER2", "USER3", "PURPOSE", "RESPONSE"]
OTHER1 = ["RELATION", "RELATIONVERSION", "RELIGION", "RELIGIONVERSION", "REGION", "REGIONVERSION",
          "Education", "EducationVersion", "Hobbies", "Email Suffix"]
VERSION = {"RELATION": "RELATIONVERSION", "RELIGION": "RELIGIONVERSION", "REGION": "REGIONVERSION",
           "Education": "EducationVersion"}
ITEM_TYPES = {"MAILCATEGORY": "Email", "LETTERCATEGORY": "Ltcat", "LETTERTYPE": "Ltyp"}


def write(table, columns, rows):
    with open(HERE / "seed" / f"{table}.csv", "w", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, columns, restval="", lineterminator="\n")
        writer.writeheader()
        writer.writerows(rows)


def main():
    with open(HERE / "reference" / "lists.csv", newline="", encoding="utf-8") as file:
        entries = list(csv.DictReader(file))
    vocabularies = {}
    for entry in entries:
        vocabularies.setdefault(entry["vocabulary"], []).append((entry["value"], entry["version"]))

    known = set(OTHER) | set(OTHER1) | set(ITEM_TYPES) | {"CATEGORY", "DEFCAT"}
    unknown = set(vocabularies) - known
    if unknown:
        raise SystemExit(f"lists.csv holds vocabularies without a table: {sorted(unknown)}")

    write("CNTB_OTHER", OTHER,
          [{column: value} for column in OTHER for value, _ in vocabularies.get(column, [])])
    write("CNTB_OTHER1", OTHER1,
          [{column: value} | ({VERSION[column]: version} if column in VERSION else {})
           for column in OTHER1 for value, version in vocabularies.get(column, [])])

    pairs = [value.split("-", 1) for value, _ in vocabularies["CATEGORY"]]
    write("CNTB_CATEGORIES", ["catid", "CATEGORY1", "CATEGORY2", "DELETED"],
          [{"catid": number, "CATEGORY1": first, "CATEGORY2": second, "DELETED": "false"}
           for number, (first, second) in enumerate(pairs, 1)])
    pairs = [value.split("-", 1) for value, _ in vocabularies["DEFCAT"]]
    write("OV_DEFCAT", ["PROJECT", "CATEGORY", "Subcat"],
          [{"PROJECT": "Contacts", "CATEGORY": first, "Subcat": second} for first, second in pairs])

    write("GF_MAST", ["ITEM", "ITMTYP", "delst"],
          [{"ITEM": value, "ITMTYP": kind, "delst": "N"}
           for vocabulary, kind in ITEM_TYPES.items() for value, _ in vocabularies[vocabulary]])


if __name__ == "__main__":
    main()
