// A session whose disk can go wrong. Nothing outside the test is touched.
#pragma once

#include "support/EdgedSession.h"
#include "support/FaultyFiles.h"

namespace wheelwright::testing {

// A desktop whose pictures are files of that disk: as wide and high as they have bytes.
class FaultyDesktop : public FakeDesktop {
 public:
  explicit FaultyDesktop(const FaultyFiles& files) : files_(files) {}
  std::optional<PictureSize> SizeOfPicture(const std::string& file) override;

 private:
  const FaultyFiles& files_;
};

struct FaultyPorts {
  FaultyFiles files;
  FaultyDesktop faultyDesktop{files};
};

class FaultySession : public FaultyPorts, public EdgedSession {
 public:
  // The program's folder holds two languages, whose entries n are "Ennn" and "Fnnn", a manual and
  // some pictures.
  FaultySession();

  void Start() { EdgedSession::Start("/app/"); }
};

}  // namespace wheelwright::testing
