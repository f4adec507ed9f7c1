// Holds a person's insertion to the length that the plain text box takes. A limit of the line edit
// itself would also cut what the program shows.
#pragma once

#include "screen/Controls.h"

#include <QValidator>

namespace wheelwright {

class TypingLimit : public QValidator {
 public:
  TypingLimit(const TextBox& box, QObject* parent) : QValidator(parent), box_(box) {}

  // Cuts the end of what was inserted before the cursor until the text fits.
  State validate(QString& text, int& cursor) const override;

 private:
  const TextBox& box_;
};

}  // namespace wheelwright
