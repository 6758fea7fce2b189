#!/usr/bin/python3
"""Reads the program over the accessibility bus, as a screen reader does, and acts on it. run.sh starts it."""
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

TABS = ["REGISTER SELECT", "TEXT SETUP", "ALARM OUTPUTS", "COMMUNICATION", "EXCEPTION REPORT", "TIME / LANGUAGE", "REMOTE"]
WHOLE = ["combo box", "list", "table", "tree"]  # their parts are entries
CHECKABLE = ["check box", "radio button"]
STATE = Atspi.StateType
findings = []


def until(condition):
    """The first true result within ten seconds, or the last one."""
    end = time.monotonic() + 10
    while not (result := condition()) and time.monotonic() < end:
        time.sleep(0.1)
    return result


def has(face, state):
    return face.get_state_set().contains(state)


def children(face):
    return [child for child in map(face.get_child_at_index, range(face.get_child_count())) if child]


def below(face):
    for child in children(face):
        yield child
        yield from below(child)


def first(faces, role, name=None):
    return next((face for face in faces if face.get_role_name() == role and name in (None, face.get_name())), None)


def value_of(face):
    if "Text" in face.get_interfaces():
        return Atspi.Text.get_text(face, 0, -1)
    entries = below(face) if face.get_role_name() in WHOLE else []
    return " ".join(entry.get_name() for entry in entries if has(entry, STATE.SELECTED))


def line_of(face):
    line = f"{face.get_role_name()} \"{face.get_name()}\""
    if value := value_of(face):
        line += f", \"{value}\""
    if has(face, STATE.CHECKED) or face.get_role_name() in CHECKABLE:
        line += ", checked" if has(face, STATE.CHECKED) else ", not checked"
    line += "" if has(face, STATE.ENABLED) else ", disabled"
    return line + (": " + face.get_description() if face.get_description() else "")


def faults_of(face, role, is_control):
    if not face.get_name().strip() and (is_control or role in ["menu item", "dialog"]):
        yield "has no name"
    if not face.get_description().strip() and is_control:
        yield "has no description"
    if role == "combo box" and not value_of(face):
        yield "has no value while its list is closed"
    if role in ["push button", *CHECKABLE] and has(face, STATE.ENABLED) and not Atspi.Action.get_n_actions(face):
        yield "cannot be pressed"
    if role == "frame" and face.get_parent().get_role_name() != "application":
        yield "has the role of a window"


def read(place, face, without=None):
    """Prints and checks what is visible, and the closed menus, in the order of the bus."""
    role = face.get_role_name()
    if face == without or not has(face, STATE.SHOWING) and role not in ["menu item", "popup menu"]:
        return
    # Tabs have the focus in place of their list and of what holds the list.
    is_control = has(face, STATE.FOCUSABLE) and not first([face, *children(face)], "page tab list")
    if is_control or role == "menu item" or face.get_name():
        print("  " + line_of(face))
    findings.extend(f"{place}: {role} \"{face.get_name()}\" {fault}" for fault in faults_of(face, role, is_control))
    for child in children(face) if role not in WHOLE else []:
        read(place, child, without)


def pressed(face, result):
    """What comes of it. On a combo box this opens or closes its list."""
    Atspi.Action.do_action(face, 0)
    return until(result)


def pick_next(place, combo):
    before = pressed(combo, lambda: has(combo, STATE.EXPANDED) and value_of(combo))
    for key in 0xff54, 0xff0d:  # Down, Return
        Atspi.generate_keyboard_event(key, None, Atspi.KeySynthType.SYM)
    until(lambda: has(combo, STATE.COLLAPSED))
    after = pressed(combo, lambda: has(combo, STATE.EXPANDED) and value_of(combo))
    print(f"pick: \"{combo.get_name()}\" was \"{before}\", is \"{after}\"")
    if not before or not after or before == after:
        findings.append(f"{place}: \"{combo.get_name()}\" does not take a pick")
    pressed(combo, lambda: has(combo, STATE.COLLAPSED))


def main():
    program = until(lambda: next((each for each in children(Atspi.get_desktop(0)) if each.get_child_count()), None))
    program = program or sys.exit("The program is not on the bus.")
    program.set_cache_mask(Atspi.Cache.NONE)  # every question goes to the program
    window = program.get_child_at_index(0)
    tabs = first(below(window), "page tab list")
    pages = first(children(tabs.get_parent()), "layered pane")
    print("window")
    read("window", window, pages)
    for name in TABS:
        print(name)
        tab = first(children(tabs), "page tab", name)
        shown = tab and pressed(tab, lambda: [page for page in children(pages) if has(page, STATE.SHOWING)
                                              and page.get_name() == name])
        if not shown:
            findings.append(f"{name}: the tab was not reached")
            continue
        read(name, shown[0])
        if combo := first(below(shown[0]), "combo box", "TIME FORMAT"):
            pick_next(name, combo)
        if button := first(below(shown[0]), "push button", "Set Comport"):
            if dialog := pressed(button, lambda: first(children(program), "dialog")):
                print("window of Set Comport")
                read("window of Set Comport", dialog)
            else:
                findings.append(f"{name}: \"Set Comport\" opens no window")
    print(f"{len(findings)} findings", *findings, sep="\n  ")
    sys.exit(1 if findings else 0)


if __name__ == "__main__":
    main()
