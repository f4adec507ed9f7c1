#include "gamefiles/VehicleLine.h"

#include "screen/HandlingFields.h"

#include <cstddef>

namespace wheelwright {
namespace {

constexpr std::size_t kNameWidth = 14;
constexpr std::size_t kMassWidth = 7;
constexpr std::size_t kMonetaryValueWidth = 6;

void AppendBlanks(std::string& out, std::size_t length, std::size_t width) {
  if (length < width) out.append(width - length, ' ');
}

}  // namespace

void AppendVehicleLine(std::string& out, const Car& car) {
  for (const HandlingField& field : kHandlingFields) {
    const std::string& value = car.*field.value;
    if (field.value != &Car::CarName) out += ' ';
    if (field.value == &Car::Mass) AppendBlanks(out, value.size(), kMassWidth);
    if (field.value == &Car::MonetaryValue) AppendBlanks(out, value.size(), kMonetaryValueWidth);
    out += value;
    if (field.value == &Car::CarName) AppendBlanks(out, value.size(), kNameWidth);
  }
}

}  // namespace wheelwright
