// What holds for saving over any template, told without any writer's rules: lines that the program
// doesn't own come through byte for byte and in order.
#pragma once

#include "support/VehicleTokens.h"

#include <string>
#include <vector>

namespace wheelwright::fuzz {

// Comments and special lines of a handling file, but for those that name the author, the date or
// the program.
void RequireHandlingComments(const std::string& onDisk, const std::string& saved);

// Comments of a definition file, and all lines in front of its first section, but for comments that
// name the program.
void RequireDefinitionComments(const std::string& onDisk, const std::string& saved);

// The same for a colour file, where only a mark in the first five columns makes a comment.
void RequireColorComments(const std::string& onDisk, const std::string& saved);

// The lines of a saved handling file that are neither comment nor special line nor empty are these
// vehicles.
void RequireTokensInLines(const std::string& saved, const std::vector<testing::Tokens>& vehicles);

// A third save in a row changes nothing more, or adds the line ends that every save adds.
void RequireOnlyGrowth(const std::string& earlier, const std::string& later,
                       const std::string& growth);

}  // namespace wheelwright::fuzz
