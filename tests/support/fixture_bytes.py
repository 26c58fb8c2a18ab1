"""Byte helpers for the scripts that write the stored test files
(tests/<subsystem>/data/make-fixtures.py). The program's data files are
random-access files of fixed-length slots; text is Windows-1252 and numbers
are little-endian."""
import struct


def code_page(text):
    return text.encode("cp1252")


def u16(value):
    return struct.pack("<H", value)


def length_prefixed(text):
    """A 2-byte length, then the characters."""
    data = code_page(text)
    return u16(len(data)) + data


def slot_file(slot_length, slots):
    """The bytes of a file whose slot n (from 1) starts at byte
    (n - 1) x slot length. `slots` maps slot numbers to their bytes, each
    at most a slot long and zero-filled to the slot's end; slots not given
    are zeros, as the gap left by writing past the end of a file reads."""
    data = bytearray(max(slots) * slot_length)
    for number, value in slots.items():
        assert len(value) <= slot_length, (number, value)
        offset = (number - 1) * slot_length
        data[offset:offset + len(value)] = value
    return bytes(data)
