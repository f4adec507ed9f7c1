// The way of a text from a plain control to a widget and back.
#pragma once

#include <string>

#include <QString>

namespace wheelwright {

// A text in the code page, character by character, as a text box or a row shows it.
QString Shown(const std::string& codePageText);

// What a person typed, in the code page.
std::string InCodePage(const QString& text);

// A caption or message: as Shown, with each line break as a toolkit wants it. Marks stay.
QString ShownCaption(const std::string& codePageText);

// The same for a text in UTF-8.
QString ShownMessage(const std::string& utf8);

// A caption as it is read on screen: a doubled "&" is one, a single one is a mark and goes.
QString WithoutMarks(const QString& caption);

// A text for a widget that reads marks, so that every "&" of it shows.
QString WithDoubledMarks(QString text);

// A text for a window's title, where "[*]" would stand for the modified mark.
QString ShownTitle(const std::string& utf8);

}  // namespace wheelwright
