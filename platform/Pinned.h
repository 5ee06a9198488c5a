// What is referred to stays where it was made.
#pragma once

namespace tessera {

/// Base of a class whose objects others hold references to: it is neither copied nor moved.
class Pinned {
 public:
  Pinned(const Pinned&) = delete;
  Pinned& operator=(const Pinned&) = delete;

 protected:
  Pinned() = default;
  ~Pinned() = default;
};

}  // namespace tessera
