// The captions that belong to no data field: frames, buttons, tabs and the labels of the colour
// pages, with the entry of the language table that replaces each.
#pragma once

#include "screen/MainWindow.h"
#include "screen/OtherWindows.h"

#include <span>
#include <string>
#include <vector>

namespace wheelwright {

// Of a caption that is in no language.
inline constexpr int kNoLang = -1;

struct CaptionRow {
  Captioned& control;
  const char* design;  // UTF-8
  int lang;
};

struct TabCaptionRow {
  TabGroup& group;
  int tab;
  const char* design;
  int lang;
};

struct ColumnCaptionRow {
  std::size_t column;
  const char* design;
  int lang;
};

std::vector<CaptionRow> CaptionsOf(FrmMain& main);
std::vector<CaptionRow> CaptionsOf(FrmError& error);
std::vector<CaptionRow> CaptionsOf(FrmExport& exporter);
// Puts the entries of a language table onto the controls.
void ApplyCaptions(const std::vector<CaptionRow>& rows, std::span<const std::string> lang);

std::vector<TabCaptionRow> TabCaptionsOf(FrmMain& main);
std::vector<ColumnCaptionRow> ColumnCaptions();

}  // namespace wheelwright
