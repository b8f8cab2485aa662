// Handlers in progress, and the panels that were dropped inside one.
#pragma once

namespace qvn::memory {

class Surface;

/// Counts the handlers and acts in progress on a platform. A surface that is dropped inside one keeps its memory, and
/// its widgets theirs, until the outermost has returned; the handler that dropped it still stands on them.
class Turns {
 public:
  /// Keeps the memory of what is dropped, for as long as it lives.
  class Keep {
   public:
    explicit Keep(Turns& turns) : turns_(turns) { ++turns_.depth_; }
    ~Keep() { turns_.end(); }
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

   private:
    Turns& turns_;
  };

  /// One handler or act, for as long as it runs. Fails with "invalid call" if handlers call each other without end.
  class Turn {
   public:
    explicit Turn(Turns& turns) : keep_(turns.withRoom()) {}

   private:
    Keep keep_;
  };

  /// Destroys the surface, now or when the outermost turn has ended.
  void drop(Surface& surface) noexcept;

 private:
  Turns& withRoom();
  void end() noexcept;

  int depth_ = 0;
  Surface* dropped_ = nullptr;  // each knows the one dropped before it
};

using Turn = Turns::Turn;

}  // namespace qvn::memory
