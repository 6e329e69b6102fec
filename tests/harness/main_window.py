"""The program's main window, read from its picture and used by mouse and keyboard."""

from typing import List, NamedTuple

from tests.harness.screen import Picture, Window
from tests.harness.waiting import wait_until

# The form fixes the window's size and so the positions of its controls.
_WIDTH, _HEIGHT = 379, 305
_UNINSTALL = (317, 276)
_SELECT = (210, 276)
_REST = (60, 276)  # an empty place for the mouse
_LIST_LEFT, _LIST_TOP, _LIST_BOTTOM = 14, 13, 203
_LIST_MIDDLE = 300  # right of all names
_BELOW_LIST = 210
_DELETE_BOTTOM = 245
# Rows that the list shows completely without scrolling.
VISIBLE_ROWS = 10
_BOX_COLUMNS = 30  # check boxes begin left of this

# A check box is a frame of 13 points with rounded corners and a dark tick inside; rounded corners
# shorten the straight part of a side. The limits are of the red part of the colour, because a box
# with the mouse on it is drawn in blue.
_FRAME_LIMIT = 0xC8
_TICK_LIMIT = 0x60
_BOX_SIZE = 13
_STRAIGHT_SIDE = range(8, _BOX_SIZE + 1)
# The same of a chosen row below the mouse.
_CHOSEN_LIMIT = 0xA0


class CheckBox(NamedTuple):
    x: int       # its middle
    y: int
    checked: bool


def _vertical_lines(picture: Picture, x: int, top: int, bottom: int) -> List[int]:
    """The rows in which column `x` has a line as long as a check box's side."""
    starts = []
    y = top
    while y < bottom:
        length = 0
        while y + length < bottom and picture.dark(x, y + length, _FRAME_LIMIT):
            length += 1
        if length in _STRAIGHT_SIDE:
            starts.append(y)
        y += length + 1
    return starts


def find_check_boxes(picture: Picture, left: int, top: int, bottom: int) -> List[CheckBox]:
    """The completely visible check boxes of the leftmost column that has any, from the top down."""
    for x in range(left, _BOX_COLUMNS):
        right = x + _BOX_SIZE - 1
        boxes = []
        for y in set(_vertical_lines(picture, x, top, bottom)) & set(
                _vertical_lines(picture, right, top, bottom)):
            inside = [(column, row) for column in range(x + 2, right - 1)
                      for row in range(y, y + _BOX_SIZE - 4)]
            checked = any(picture.dark(*point, _TICK_LIMIT) for point in inside)
            boxes.append(CheckBox(x + _BOX_SIZE // 2, y + _BOX_SIZE // 2 - 2, checked))
        if boxes:
            return sorted(boxes, key=lambda box: box.y)
    return []


class MainWindow:
    """Rows are counted from 0; only completely visible ones can be used."""

    def __init__(self, window: Window):
        self.window = window
        # Beside the middle of a row's box, each time on the other side: two clicks on one point would
        # be a double click, which toggles a row only once.
        self._aside = 4

    def _picture(self) -> Picture:
        picture = self.window.picture()
        assert (picture.width, picture.height) == (_WIDTH, _HEIGHT), picture
        return picture

    def _rows(self) -> List[CheckBox]:
        return find_check_boxes(self._picture(), _LIST_LEFT, _LIST_TOP, _LIST_BOTTOM)

    def _delete_box(self) -> CheckBox:
        def found() -> List[CheckBox]:
            return find_check_boxes(self._picture(), 0, _BELOW_LIST, _DELETE_BOTTOM)
        return wait_until(found, "the box 'Delete settings and history' is not shown")[0]

    def settled_picture(self) -> Picture:
        return self.window.settled_picture()

    def move_mouse_aside(self) -> None:
        self.window.move_mouse(*_REST)

    def checked_rows(self) -> List[bool]:
        return [row.checked for row in self._rows()]

    def deletes_settings(self) -> bool:
        return self._delete_box().checked

    def wait_for_rows(self, count: int) -> None:
        self._delete_box()  # a window that is not painted yet shows no rows either
        wait_until(lambda: len(self._rows()) == count, f"the list does not show {count} rows")

    def wait_for_checked_rows(self, expected: List[bool]) -> None:
        def reached() -> bool:
            return self.checked_rows() == expected
        wait_until(reached, f"the rows' boxes did not become {expected}")

    def toggle_row(self, row: int) -> None:
        """Clicks the row's check box and waits until it has changed."""
        box = wait_until(lambda: self._rows()[row:row + 1], f"row {row} is not shown")[0]
        self.window.click(box.x + self._aside, box.y)
        self._aside = -self._aside
        wait_until(lambda: self.checked_rows()[row:row + 1] == [not box.checked],
                   f"row {row} did not change its state")

    def press_in_list(self, *keys: str) -> None:
        """Chooses the first visible row, presses keys, and waits until they changed the picture."""
        box = wait_until(self._rows, "no row is shown")[0]
        self.window.click(box.x + _BOX_COLUMNS, box.y)
        wait_until(lambda: self._picture().dark(_LIST_MIDDLE, box.y, _CHOSEN_LIMIT),
                   "the first row was not chosen")
        before = self.settled_picture()
        self.window.press(*keys)
        wait_until(lambda: self.settled_picture() != before, f"{keys} had no effect")

    def toggle_delete_settings(self) -> None:
        box = self._delete_box()
        self.window.click(box.x, box.y)
        wait_until(lambda: self._delete_box().checked != box.checked,
                   "'Delete settings and history' did not change its state")

    def press_select_button(self) -> None:
        """"Select all" or "Select none", whichever it is."""
        self.window.click(*_SELECT)

    def select_all(self) -> None:
        """Presses "Select all" and waits until all boxes, including the delete box, are checked."""
        rows = len(self._rows())
        self.press_select_button()
        self.wait_for_checked_rows([True] * rows)
        wait_until(self.deletes_settings, "'Delete settings and history' was not checked")

    def press_uninstall(self) -> None:
        self.window.click(*_UNINSTALL)

    def close(self) -> None:
        self.window.press("alt+F4")
