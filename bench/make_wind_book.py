#!/usr/bin/env python3
"""Writes one wind workbook of about 8,000 formula cells in two forms: a workbook source for
gustline-wbbuild and an .xlsx (its filled columns as shared formulas) for other spreadsheet
programs, so that bench/compare.sh can time both on the same formulas.

    bench/make_wind_book.py OUT_FOLDER [ROWS]

Seven sheets: the inputs, a table of exposure constants, and five sheets of 535 heights
each reading the one before (Kz by Table 6-3 with INDEX/MATCH, qz with ROUND, a gust chain
with EXP/LN and CHOOSE, pressures with IF, and sums)."""
import os
import sys
import zipfile
from xml.sax.saxutils import escape

ROWS = int(sys.argv[2]) if len(sys.argv) > 2 else 535
OUT = sys.argv[1]

INPUTS = [("Speed", 90.0), ("Exposure", 3.0), ("Kd", 0.85), ("Importance", 1.15), ("Kzt", 1.0),
          ("GCpi", 0.18), ("Damping", 0.01)]
TABLE = [("B", 7.0, 1200.0, 0.30, 320.0), ("C", 9.5, 900.0, 0.20, 500.0),
         ("D", 11.5, 700.0, 0.15, 650.0)]

# Each data sheet: (name, [(column, formula at row 2)]); rows 2..ROWS+1.
SHEETS = [
    ("Heights", [("A", "A1+1"),
                 ("B", "MAX(A2,15)"),
                 ("C", "INDEX(Table!$B$2:$B$4,Inputs!$B$3)")]),
    ("Kz", [("A", "2.01*(Heights!B2/INDEX(Table!$C$2:$C$4,MATCH(Inputs!$B$3,Table!$F$2:$F$4,0)))^(2/Heights!C2)"),
            ("B", "ROUND(A2,4)"),
            ("C", "IF(Heights!A2<15,B2,A2)")]),
    ("Pressure", [("A", "0.00256*Kz!C2*Inputs!$B$6*Inputs!$B$4*Inputs!$B$2^2*Inputs!$B$5"),
                  ("B", "ROUND(A2,2)"),
                  ("C", "A2*0.8-Inputs!$B$7*A2")]),
    ("Gust", [("A", "INDEX(Table!$D$2:$D$4,Inputs!$B$3)*(33/Heights!B2)^(1/6)"),
              ("B", "EXP(LN(Heights!B2/INDEX(Table!$E$2:$E$4,Inputs!$B$3))*0.3)"),
              ("C", "CHOOSE(Inputs!$B$3,0.925,0.93,0.935)*(1+1.7*3.4*A2*B2)/(1+1.7*3.4*A2)")]),
    ("Loads", [("A", "Pressure!C2*Gust!C2"),
               ("B", "IF(A2>Pressure!B2,A2,Pressure!B2)"),
               ("C", "SUM(B$2:B2)")]),
]


def data_rows():
    return range(2, ROWS + 2)


def source(folder):
    lines = ["book WindBench", "sheet Inputs", "sheet Table"]
    lines += ["sheet " + name for name, _ in SHEETS]
    lines.append("grid Inputs!A2")
    for label, value in INPUTS:
        lines.append(f"| {label} | {value} |")
    lines.append("| Base | 0 |")
    lines.append("grid Table!A2")
    for row, (letter, alpha, zg, b, ell) in enumerate(TABLE, start=1):
        lines.append(f'| "{letter}" | {alpha} | {zg} | {b} | {ell} | {row} |')
    lines.append("grid Heights!A1")
    lines.append("| 4 |")
    last = ROWS + 1
    for name, columns in SHEETS:
        for column, formula in columns:
            text = formula
            lines.append(f"fill {name}!{column}2:{column}{last} ={text}")
    with open(os.path.join(folder, "WindBench.book"), "w") as out:
        out.write("\n".join(lines) + "\n")


def cell(ref, inner):
    return f'<c r="{ref}"{inner}'


def sheet_xml(cells):
    rows = {}
    for ref, xml in cells:
        row = int("".join(ch for ch in ref if ch.isdigit()))
        rows.setdefault(row, []).append(xml)
    body = "".join(f'<row r="{r}">{"".join(rows[r])}</row>' for r in sorted(rows))
    return ('<?xml version="1.0" encoding="UTF-8" standalone="yes"?>'
            '<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">'
            f'<sheetData>{body}</sheetData></worksheet>')


def number(ref, value):
    return ref, f'<c r="{ref}"><v>{value}</v></c>'


def text(ref, value):
    return ref, f'<c r="{ref}" t="inlineStr"><is><t>{escape(value)}</t></is></c>'


def xlsx(path):
    sheets = []
    inputs = [text(f"A{r}", label) for r, (label, _) in enumerate(INPUTS, start=2)]
    inputs += [number(f"B{r}", value) for r, (_, value) in enumerate(INPUTS, start=2)]
    inputs += [text("A9", "Base"), number("B9", 0)]
    sheets.append(("Inputs", inputs))
    table = []
    for r, (letter, alpha, zg, b, ell) in enumerate(TABLE, start=2):
        table += [text(f"A{r}", letter), number(f"B{r}", alpha), number(f"C{r}", zg),
                  number(f"D{r}", b), number(f"E{r}", ell), number(f"F{r}", r - 1)]
    sheets.append(("Table", table))
    shared = 0
    last = ROWS + 1
    for name, columns in SHEETS:
        cells = [number("A1", 4)] if name == "Heights" else []
        for column, formula in columns:
            first = escape(formula)
            for r in data_rows():
                ref = f"{column}{r}"
                if r == 2:
                    f = f'<f t="shared" ref="{column}2:{column}{last}" si="{shared}">{first}</f>'
                else:
                    f = f'<f t="shared" si="{shared}"/>'
                cells.append((ref, f'<c r="{ref}">{f}</c>'))
            shared += 1
        sheets.append((name, cells))
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as z:
        z.writestr("[Content_Types].xml",
                   '<?xml version="1.0" encoding="UTF-8"?>'
                   '<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">'
                   '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
                   '<Default Extension="xml" ContentType="application/xml"/>'
                   '<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>'
                   + "".join(f'<Override PartName="/xl/worksheets/sheet{i}.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>'
                             for i in range(1, len(sheets) + 1)) + "</Types>")
        z.writestr("_rels/.rels",
                   '<?xml version="1.0" encoding="UTF-8"?>'
                   '<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">'
                   '<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="xl/workbook.xml"/>'
                   "</Relationships>")
        z.writestr("xl/workbook.xml",
                   '<?xml version="1.0" encoding="UTF-8"?>'
                   '<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" '
                   'xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships"><sheets>'
                   + "".join(f'<sheet name="{name}" sheetId="{i}" r:id="rId{i}"/>'
                             for i, (name, _) in enumerate(sheets, start=1)) + "</sheets></workbook>")
        z.writestr("xl/_rels/workbook.xml.rels",
                   '<?xml version="1.0" encoding="UTF-8"?>'
                   '<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">'
                   + "".join(f'<Relationship Id="rId{i}" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet{i}.xml"/>'
                             for i in range(1, len(sheets) + 1)) + "</Relationships>")
        for i, (_, cells) in enumerate(sheets, start=1):
            z.writestr(f"xl/worksheets/sheet{i}.xml", sheet_xml(cells))


os.makedirs(OUT, exist_ok=True)
source(OUT)
xlsx(os.path.join(OUT, "WindBench.xlsx"))
