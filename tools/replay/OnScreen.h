// What a person finds on the screen, read off the widgets and held against the plain controls. It
// asks none of the mirrors between the two and takes no text their way.
#pragma once

#include "screen/Control.h"

#include <string>

#include <QString>
#include <QWidget>

namespace wheelwright::replay {

// A text in Windows-1252, character by character.
QString AsWritten(const std::string& bytes);

// A caption as a person reads it: "&&" is one "&", a single one is a mark and goes, if it has
// something to mark. In Windows-1252 a line break is two characters, on a widget one.
QString AsRead(const std::string& caption);
QString AsRead(QString widgetsCaption);

// What a control's widget shows otherwise than the control says, empty if they agree.
std::string DifferenceOnScreen(const Control& control, QWidget& widget);

}  // namespace wheelwright::replay
