// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The yardstick: reads the menu bar of an application (its process id is the argument) with a plain walk,
// depth first and one question at a time, through the AT-SPI library of the distribution. Prints the
// milliseconds and how many commands with a key binding it met.

#include <atspi/atspi.h>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct Walk
{
    int entries = 0;
    int bound = 0;
};

bool isContent(AtspiRole role)
{
    switch (role) {
    case ATSPI_ROLE_TEXT:
    case ATSPI_ROLE_TABLE:
    case ATSPI_ROLE_TABLE_CELL:
    case ATSPI_ROLE_TREE:
    case ATSPI_ROLE_TREE_TABLE:
    case ATSPI_ROLE_LIST:
    case ATSPI_ROLE_TERMINAL:
    case ATSPI_ROLE_ENTRY:
    case ATSPI_ROLE_DOCUMENT_FRAME:
    case ATSPI_ROLE_DOCUMENT_TEXT:
    case ATSPI_ROLE_DOCUMENT_WEB:
        return true;
    default:
        return false;
    }
}

bool isEntry(AtspiRole role)
{
    return role == ATSPI_ROLE_MENU_ITEM || role == ATSPI_ROLE_CHECK_MENU_ITEM ||
           role == ATSPI_ROLE_RADIO_MENU_ITEM;
}

void walk(AtspiAccessible *node, bool isInBar, Walk &result)
{
    const AtspiRole role = atspi_accessible_get_role(node, nullptr);
    if (isContent(role))
        return;
    isInBar = isInBar || role == ATSPI_ROLE_MENU_BAR;
    if (isInBar && isEntry(role)) {
        g_free(atspi_accessible_get_name(node, nullptr));
        AtspiStateSet *states = atspi_accessible_get_state_set(node);
        const bool isVisible = atspi_state_set_contains(states, ATSPI_STATE_VISIBLE) != 0;
        g_object_unref(states);
        gchar *binding = atspi_action_get_key_binding(ATSPI_ACTION(node), 0, nullptr);
        result.entries += isVisible ? 1 : 0;
        if (binding != nullptr && *binding != '\0')
            ++result.bound;
        g_free(binding);
    }
    const gint count = atspi_accessible_get_child_count(node, nullptr);
    for (gint i = 0; i < count; ++i) {
        AtspiAccessible *child = atspi_accessible_get_child_at_index(node, i, nullptr);
        if (child == nullptr)
            continue;
        walk(child, isInBar, result);
        g_object_unref(child);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    const guint pid = static_cast<guint>(std::strtoul(argv[1], nullptr, 10));
    atspi_init();
    AtspiAccessible *desktop = atspi_get_desktop(0);
    for (gint i = 0; i < atspi_accessible_get_child_count(desktop, nullptr); ++i) {
        AtspiAccessible *application = atspi_accessible_get_child_at_index(desktop, i, nullptr);
        if (application == nullptr || atspi_accessible_get_process_id(application, nullptr) != pid)
            continue;
        Walk result;
        const auto start = std::chrono::steady_clock::now();
        walk(application, false, result);
        const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
        std::printf("%.2f %d %d\n", took.count(), result.entries, result.bound);
        return 0;
    }
    return 1;
}
