"""Packs a folder in a format without modes.

usage: without-modes.py cab|windows-zip FOLDER FILE
"""
import pathlib
import struct
import sys
import zipfile

YEAR_2025 = 0x5A21  # 1 January, in the date format of MS-DOS


def write_cabinet(files, out):
    """Writes one folder as one uncompressed block, which has at most 32 KiB."""
    table = b""
    block = b""
    for name, content in files:
        table += struct.pack("<IIHHHH", len(content), len(block), 0, YEAR_2025, 0, 0x20)
        table += name.replace("/", "\\").encode() + b"\0"
        block += content
    assert len(block) <= 32768
    table_at = 36 + 8
    block_at = table_at + len(table)
    size = block_at + 8 + len(block)
    out.write(b"MSCF" + struct.pack("<5I2B5H", 0, size, 0, table_at, 0, 3, 1, 1, len(files), 0, 0, 0))
    out.write(struct.pack("<IHH", block_at, 1, 0) + table)
    out.write(struct.pack("<IHH", 0, len(block), len(block)) + block)


def write_windows_zip(files, out):
    with zipfile.ZipFile(out, "w") as archive:
        for name, content in files:
            entry = zipfile.ZipInfo(name)
            entry.create_system = 0
            entry.external_attr = 0x20
            archive.writestr(entry, content)


def main():
    form, folder, target = sys.argv[1:]
    root = pathlib.Path(folder)
    files = [(path.relative_to(root).as_posix(), path.read_bytes())
             for path in sorted(root.rglob("*")) if path.is_file()]
    with open(target, "wb") as out:
        {"cab": write_cabinet, "windows-zip": write_windows_zip}[form](files, out)


main()
