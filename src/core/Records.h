// The records of the four tables. File values are the very texts that stood in the file.
#pragma once

#include "core/FieldText.h"

#include <array>
#include <cstdint>
#include <vector>

namespace wheelwright {

// Whether the handling file has a line of a special kind that names the vehicle.
enum LineKind : std::int16_t {
  kOrdinaryVehicle = 0,
  kPercentLine = 1,      // "%", boats: the only kind that changes the screen
  kExclamationLine = 2,  // "!", bikes
  kDollarLine = 3,       // "$", aircraft
};

// One vehicle of the handling file: slot 0 and 33 texts, slots 1 to 33 in this order.
struct Car {
  std::int16_t LineKind = kOrdinaryVehicle;
  FieldText CarName;
  FieldText Mass;
  FieldText DimensionX;
  FieldText DimensionY;
  FieldText DimensionZ;
  FieldText CenterOfMassX;
  FieldText CenterOfMassY;
  FieldText CenterOfMassZ;
  FieldText PercentSubmerged;
  FieldText TractionMultiplier;
  FieldText TractionLoss;
  FieldText TractionBias;
  FieldText GearCount;
  FieldText MaxVelocity;
  FieldText EngineAcceleration;
  FieldText DriveType;
  FieldText EngineType;
  FieldText BrakeDeceleration;
  FieldText BrakeBias;
  FieldText ABS;
  FieldText SteeringLock;
  FieldText SuspensionForceLevel;
  FieldText SuspensionDampingLevel;
  FieldText SeatOffset;
  FieldText CollisionDamageMultiplier;
  FieldText MonetaryValue;
  FieldText suspension_upper_limit;
  FieldText suspension_lower_limit;
  FieldText SuspensionBias;
  FieldText SuspensionAntiDive;
  FieldText ModelFlags;
  FieldText FrontLights;
  FieldText RearLights;

  bool operator==(const Car&) const = default;
};

// One vehicle definition: the thirteen fields of a line of default.ide, in this order.
struct IdeEntry {
  FieldText ID;
  FieldText ModelName;
  FieldText TXDName;
  FieldText Typ;
  FieldText HandlingID;
  FieldText GameName;
  FieldText Anim;
  FieldText Klasse;
  FieldText Frequenz;
  FieldText Level;
  FieldText CompRules;
  FieldText Extra1;
  FieldText Extra2;

  bool operator==(const IdeEntry&) const = default;
};

// One colour of the palette. Index is the number that the file's comments carry; after a deletion
// or an addition it and the position in the table part ways.
struct ColorEntry {
  std::int16_t Index = 0;
  std::int16_t Red = 0;
  std::int16_t Green = 0;
  std::int16_t Blue = 0;
  FieldText ColorName;

  bool operator==(const ColorEntry&) const = default;
};

// A colour as it can be shown: red, green and blue, each from 0 to 255.
using Rgb = std::array<int, 3>;

// Two colours that a vehicle may wear together, by the Index of each.
struct ColorPair {
  std::int16_t Color1 = 0;
  std::int16_t Color2 = 0;

  bool operator==(const ColorPair&) const = default;
};

// The colour pairs of one vehicle.
struct CarColorEntry {
  FieldText ModelName;
  std::vector<ColorPair> Pairs;

  bool operator==(const CarColorEntry&) const = default;
};

}  // namespace wheelwright
