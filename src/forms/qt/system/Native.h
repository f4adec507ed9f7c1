// What each system does in its own way: the common file dialog and the shell. Each has a source
// file.
#pragma once

#include "screen/Desktop.h"

#include <QFileDialog>

namespace wheelwright {

// Shows the dialog above its owner and puts the choice into it; starts in the directory given if no
// file is preset. Failure 32755 when it is cancelled.
void RunFileDialog(QWidget* owner, FileDialog& dialog, QFileDialog::AcceptMode mode, QString& directory);

// Hands a file to the desktop's own handler and returns at once; whether it comes up isn't looked
// at.
void OpenInShell(const QString& file);

}  // namespace wheelwright
