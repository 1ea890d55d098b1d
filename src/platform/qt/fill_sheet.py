#!/usr/bin/env python3
"""Fills in cells of a workbook with the office program, for qt_sheets.cpp.

Reads one JSON object on its standard input:
  book     path of the workbook, which is only read
  filled   path of the workbook to write, of the same form
  profile  folder for the office program's own files, so that one that is running already has no part in this
  sheet    name of the sheet, found without regard to case
  cells    list of [address, text]
  seconds  when to give up
Prints one line: "reply: " and filled, bad_cell, no_sheet, no_program or failed.
"""
import contextlib
import json
import os
import secrets
import shutil
import signal
import subprocess
import sys
import time

try:
    import uno
    from com.sun.star.beans import PropertyValue
    from com.sun.star.connection import NoConnectException
    from com.sun.star.uno import Exception as OfficeException
except ImportError:
    uno = None

NEVER = 0  # of com.sun.star.document.MacroExecMode and of com.sun.star.document.UpdateDocMode
WORKBOOK = "com.sun.star.sheet.SpreadsheetDocument"
FORM = "MS Excel 97"


class GaveUp(Exception):
    """The time is over, or the program that started this one ended it."""


def give_up(_signal, _frame):
    raise GaveUp()


def setting(name, value):
    one = PropertyValue()
    one.Name, one.Value = name, value
    return one


def start_office(program, profile, pipe):
    # A session of its own, so that all that it starts can be ended with it.
    return subprocess.Popen(
        [program, "--headless", "--invisible", "--norestore", "--nologo", "--nodefault", "--nolockcheck",
         "-env:UserInstallation=" + uno.systemPathToFileUrl(profile), f"--accept=pipe,name={pipe};urp;"],
        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)


def desktop_of(office, pipe):
    here = uno.getComponentContext()
    resolver = here.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", here)
    while True:
        try:
            there = resolver.resolve(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
            return there.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", there)
        except NoConnectException:
            if office.poll() is not None:
                raise GaveUp() from None
            time.sleep(0.05)


def end_office(office, patience):
    with contextlib.suppress(subprocess.TimeoutExpired):
        office.wait(patience)
    with contextlib.suppress(ProcessLookupError):
        os.killpg(office.pid, signal.SIGKILL)  # what is left of it
    office.wait()


def is_workbook(document):
    """Whether it was read as one: any text can be taken for a table of values."""
    if document is None or not document.supportsService(WORKBOOK):
        return False
    return any(one.Name == "FilterName" and "Excel" in one.Value for one in document.getArgs())


def sheet_named(document, name):
    for each in document.Sheets.ElementNames:
        if each.casefold() == name.casefold():
            return document.Sheets.getByName(each)
    return None


def storable(text):
    """Line ends as one sign; no other control character, which a workbook has no place for."""
    text = text.replace("\r\n", "\n").replace("\r", "\n")
    return "".join(c for c in text if c >= " " or c in "\n\t")


def set_cell(sheet, address, text):
    try:
        cell = sheet.getCellRangeByName(address).getCellByPosition(0, 0)
        cell.setString(storable(text))  # never a formula, whatever it begins with
        return cell.getString() == storable(text)
    except OfficeException:
        return False


def fill(desktop, job):
    # Not hidden: the sheet that is in front is kept only of a document that is shown, which nobody sees here.
    harmless = (setting("MacroExecutionMode", NEVER), setting("UpdateDocMode", NEVER))
    document = desktop.loadComponentFromURL(uno.systemPathToFileUrl(job["book"]), "_blank", 0, harmless)
    if not is_workbook(document):
        return "failed"
    sheet = sheet_named(document, job["sheet"])
    if sheet is None:
        return "no_sheet"
    document.CurrentController.setActiveSheet(sheet)
    is_set = [set_cell(sheet, address, text) for address, text in job["cells"]]
    document.storeToURL(uno.systemPathToFileUrl(job["filled"]), (setting("FilterName", FORM),))
    document.close(True)
    return "filled" if all(is_set) else "bad_cell"


def work(job):
    """The reply. It is printed before the office program is ended, which may take others with it."""
    program = shutil.which("soffice") or shutil.which("libreoffice")
    if uno is None or program is None:
        return print("reply: no_program", flush=True)
    pipe = "terranote_" + secrets.token_hex(8)
    office = start_office(program, job["profile"], pipe)
    patience = 0
    try:
        desktop = desktop_of(office, pipe)
        print("reply: " + fill(desktop, job), flush=True)
        signal.alarm(0)
        with contextlib.suppress(OfficeException):  # the bridge may go before its answer is here
            desktop.terminate()
        patience = 3
    finally:
        end_office(office, patience)


def main():
    for each in (signal.SIGALRM, signal.SIGTERM):
        signal.signal(each, give_up)
    try:
        job = json.load(sys.stdin.buffer)
        signal.alarm(job["seconds"])
        work(job)
    except Exception as reason:  # whatever it was, the program that waits is told
        print("reply: failed", flush=True)
        print(repr(reason), file=sys.stderr)


main()
