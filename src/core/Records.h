// The records of the four tables. File values are the very texts that stood in the file.
#pragma once

#include <cstdint>
#include <string>
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
  std::string CarName;
  std::string Mass;
  std::string DimensionX;
  std::string DimensionY;
  std::string DimensionZ;
  std::string CenterOfMassX;
  std::string CenterOfMassY;
  std::string CenterOfMassZ;
  std::string PercentSubmerged;
  std::string TractionMultiplier;
  std::string TractionLoss;
  std::string TractionBias;
  std::string GearCount;
  std::string MaxVelocity;
  std::string EngineAcceleration;
  std::string DriveType;
  std::string EngineType;
  std::string BrakeDeceleration;
  std::string BrakeBias;
  std::string ABS;
  std::string SteeringLock;
  std::string SuspensionForceLevel;
  std::string SuspensionDampingLevel;
  std::string SeatOffset;
  std::string CollisionDamageMultiplier;
  std::string MonetaryValue;
  std::string suspension_upper_limit;
  std::string suspension_lower_limit;
  std::string SuspensionBias;
  std::string SuspensionAntiDive;
  std::string ModelFlags;
  std::string FrontLights;
  std::string RearLights;

  bool operator==(const Car&) const = default;
};

// One vehicle definition: the thirteen fields of a line of default.ide, in this order.
struct IdeEntry {
  std::string ID;
  std::string ModelName;
  std::string TXDName;
  std::string Typ;
  std::string HandlingID;
  std::string GameName;
  std::string Anim;
  std::string Klasse;
  std::string Frequenz;
  std::string Level;
  std::string CompRules;
  std::string Extra1;
  std::string Extra2;

  bool operator==(const IdeEntry&) const = default;
};

// One colour of the palette. Index is the number that the file's comments carry; after a deletion
// or an addition it and the position in the table part ways.
struct ColorEntry {
  std::int16_t Index = 0;
  std::int16_t Red = 0;
  std::int16_t Green = 0;
  std::int16_t Blue = 0;
  std::string ColorName;

  bool operator==(const ColorEntry&) const = default;
};

// The colour pairs of one vehicle; element i of the two arrays, always equally long, is pair i.
struct CarColorEntry {
  std::string ModelName;
  std::vector<std::int16_t> Color1;
  std::vector<std::int16_t> Color2;

  bool operator==(const CarColorEntry&) const = default;
};

}  // namespace wheelwright
