"""Prints each row of a file of comma-separated values, as another program reads it."""
import csv
import sys

with open(sys.argv[1], encoding="utf-8-sig", newline="") as file:
    for row in csv.reader(file):
        print(row)
