// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace keyvora {

/// Gives back what the process holds without needing it now: freed heap, and the pages of code and constants
/// that the program and its libraries have read from their files. What is needed again comes back by itself,
/// from the system's own copy of the files, without anybody noticing. Any thread may call it at any time.
void returnUnusedMemory();

} // namespace keyvora
