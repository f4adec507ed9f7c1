// Texts that people type and files hold, among them such as nobody should.
#pragma once

#include "soak/Dice.h"

#include <initializer_list>
#include <string>

namespace wheelwright::soak {

// The parts in a row. Throws that make a text stand in such a list, where their order is fixed.
std::string Strung(std::initializer_list<std::string> parts);

// What is typed into a box, UTF-8: numbers, words, marks of the file formats, letters of many
// kinds.
std::string TypedText(Dice& dice);

// Bytes of a file: a run of anything, without line ends.
std::string AnyBytes(Dice& dice, int longest);

// A number as files have it, now and then none.
std::string OddNumber(Dice& dice);

// A vehicle's name in the code page: some are the beginning of others or equal but for case.
std::string OddName(Dice& dice);

}  // namespace wheelwright::soak
