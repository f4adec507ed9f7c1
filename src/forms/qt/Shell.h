// The desktop's own handler for a file. Each system has a source file of its own.
#pragma once

#include <QString>

namespace wheelwright {

// Returns at once; whether the file comes up isn't looked at.
void OpenInShell(const QString& file);

}  // namespace wheelwright
