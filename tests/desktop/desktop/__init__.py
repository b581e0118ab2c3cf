# SPDX-FileCopyrightText: 2026 The Keyvora developers
# SPDX-License-Identifier: MIT
"""Drives real programs on a virtual desktop the way a person does, and sees what a person can see."""
