// The common file dialog: on Windows its own, elsewhere Qt's.
#pragma once

#include "screen/Desktop.h"

#include <QFileDialog>
#include <QString>
#include <QStringList>

namespace wheelwright {

// "label|patterns|label|patterns|..." as Qt's name filters; a label without patterns is left out.
// Not there on Windows.
QStringList NameFilters(const std::string& filter);

// Shows the dialog and puts the choice into it; starts in the directory given if no file is preset.
// Failure 32755 when it is cancelled.
void RunFileDialog(FileDialog& dialog, QFileDialog::AcceptMode mode, QString& directory);

}  // namespace wheelwright
