// Texts that files hold, among them such as none should.
#pragma once

#include "oracle/Dice.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace wheelwright::testing {

// The parts in a row. Throws that make a text stand in such a list, where their order is fixed.
std::string Strung(std::initializer_list<std::string> parts);

// A run of anything, without line ends.
std::string AnyBytes(Dice& dice, int longest);

// A run of a few characters, so that equal and nearly equal texts come up often.
std::string FewOf(Dice& dice, const std::string& characters, int longest);

// A number as files have it, now and then none.
std::string OddNumber(Dice& dice);

// A vehicle's name: some are the beginning of others or equal but for case, or too long.
std::string OddName(Dice& dice);
std::vector<std::string> OddNames(Dice& dice);

// A text that somebody may have put into a field of a table.
std::string OddField(Dice& dice);

// The lines, mostly ended by carriage return and line feed, now and then by something else.
std::string TextOfLines(Dice& dice, const std::vector<std::string>& lines);

}  // namespace wheelwright::testing
