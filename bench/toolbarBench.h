// Filling a toolbar, and a new editor with its toolbar and calculator, each beside a bare counterpart.
#pragma once

namespace bench {

/// loadVarBar with buttons that have icons.
void load(int count, int buttonCount);
/// The icon extraction and the toolbar calls for them.
void loadBare(int count, int buttonCount);

/// The tick that finds a new board, until it has its toolbar of 40 buttons and its calculator.
void newEditors(int count);
/// The passes over the processes and the titles, and what a new editor gets (bareEditor.h).
void newEditorsBare(int count);

} // namespace bench
