#include "soak/RandomFiles.h"

#include "soak/OddText.h"

namespace wheelwright::soak {

std::string FileOf(Dice& dice, const std::vector<std::string>& lines) {
  const int ending = dice.Below(14);
  std::string text;
  for (const std::string& line : lines) {
    text += line;
    if (ending == 0) {
      text += '\n';
    } else if (ending == 1) {
      text += dice.OneOf({"\n", "\r\n", "\r"});
    } else {
      text += "\r\n";
    }
  }
  if (ending == 2 && text.size() > 2) text.resize(text.size() - 2);
  return text;
}

Files RandomFiles(Dice& dice) {
  Files files;
  files["app/Aa.lng"] = RandomLanguage(dice, true);
  if (!dice.OneIn(3)) files["app/Odd.lng"] = RandomLanguage(dice, false);
  if (dice.OneIn(2)) files["app/Anleitung.htm"] = "manual";
  if (dice.OneIn(2)) files["app/gfx/bus.bmp"] = RandomPicture(dice);
  if (dice.OneIn(3)) files["app/gfx/nopictureavailable.jpg"] = RandomPicture(dice);
  files["data/handling.cfg"] = RandomHandlingFile(dice);
  files["data/second.cfg"] = RandomHandlingFile(dice);
  files["data/default.ide"] = RandomDefinitionFile(dice);
  files["data/carcols.dat"] = RandomColorFile(dice);
  files["data/swap.cfg"] = RandomExchangeFile(dice);
  if (dice.OneIn(4)) files["data/second.dat"] = RandomColorFile(dice);
  if (dice.OneIn(4)) files["data/odd.cfg.backup"] = RandomHandlingFile(dice);
  if (dice.OneIn(4)) files["data/garbage.ide"] = AnyBytes(dice, 200);
  if (dice.OneIn(8)) files["data/notes.TXT"] = AnyBytes(dice, 20);
  return files;
}

}  // namespace wheelwright::soak
