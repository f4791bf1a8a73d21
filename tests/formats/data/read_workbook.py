"""Prints each cell of a workbook, as another program reads it: row, column, kind, bold, value."""
import sys
import xlrd

book = xlrd.open_workbook(sys.argv[1], formatting_info=True)
sheet = book.sheet_by_index(0)
print("sheet", sheet.name, sheet.nrows, sheet.ncols, len(book.sheet_names()))
for column, info in sorted(sheet.colinfo_map.items()):
    print("width", column, info.width / 256)
for row in range(sheet.nrows):
    for column in range(sheet.row_len(row)):
        cell = sheet.cell(row, column)
        if cell.ctype == xlrd.XL_CELL_EMPTY:
            continue
        bold = book.font_list[book.xf_list[cell.xf_index].font_index].bold
        value = cell.value
        if cell.ctype == xlrd.XL_CELL_DATE:
            value = "%04d-%02d-%02d %02d:%02d:%02d" % xlrd.xldate_as_tuple(value, book.datemode)
        print(row, column, cell.ctype, bold, repr(value) if len(repr(value)) < 90 else "%d %s %s" % (len(value), value[:3], value[-3:]))
