# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""The menus of applications, in the accessible trees of all common toolkits."""

from .accessibility import Role

# What a menu bar is never found in, and what may be without end.
CONTENT_ROLES = (Role.TEXT, Role.DOCUMENT_TEXT, Role.DOCUMENT_WEB, Role.TREE, Role.TREE_TABLE, Role.TABLE)


def bar(tree):
    """The menu bar that a person sees in an application, or nothing."""
    ahead = [tree]
    while ahead:
        node = ahead.pop()
        role = node.role
        if role == Role.MENU_BAR:
            # An application may have a second one that takes no room.
            if is_on_screen(node):
                return node
        elif role not in CONTENT_ROLES:
            ahead.extend(reversed(node.children))
    return None


def context_menu(tree):
    """The menu of an application that is open without belonging to a menu bar, or nothing."""
    for window in tree.children:
        for child in window.children:
            if child.role in (Role.MENU, Role.POPUP_MENU) and is_on_screen(child):
                return child
    return None


def row(menu, title):
    """The row of that title which a person sees in an open menu or in a menu bar, or nothing."""
    for node in _rows(menu):
        # Some pad the titles to make room for the keys.
        if node.name.strip() == title and is_on_screen(node):
            return node
    return None


def is_open(menu):
    """Whether a person sees rows of a menu."""
    return any(map(is_on_screen, _rows(menu)))


def is_on_screen(node):
    extents = node.extents
    # Toolkits give menus that were never open a place far away or no size.
    return node.is_showing and extents is not None and min(extents) >= 0 and extents.width > 1 and extents.height > 1


def _rows(menu):
    for child in menu.children:
        # Between a title and its rows, some toolkits have the window that holds them.
        if child.role == Role.POPUP_MENU:
            yield from child.children
        else:
            yield child
