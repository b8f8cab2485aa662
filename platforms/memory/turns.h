// Handlers in progress, and the panels and forms that were dropped inside one.
#pragma once

namespace qvn::memory {

/// Counts the handlers and acts in progress on a platform. A surface that is dropped inside one keeps its memory, and
/// its widgets theirs, until the outermost has returned; the handler that dropped it still stands on them. The same
/// with a form.
class Turns {
 public:
  /// What stands until the outermost turn has ended.
  class Lasting {
   public:
    Lasting() = default;
    Lasting(const Lasting&) = delete;
    Lasting& operator=(const Lasting&) = delete;

   protected:
    ~Lasting() = default;

   private:
    friend class Turns;
    virtual void destroy() noexcept = 0;

    Lasting* droppedBefore_ = nullptr;
  };

  /// Keeps the memory of what is dropped, for as long as it lives.
  class Keep {
   public:
    explicit Keep(Turns& turns) : turns_(turns) { turns_.begin(); }
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

  /// The same as a Keep, for those that cannot have one: each begin() has its end().
  void begin() noexcept { ++depth_; }
  void end() noexcept;

  /// Destroys what was dropped, now or when the outermost turn has ended.
  void drop(Lasting& dropped) noexcept;

 private:
  Turns& withRoom();

  int depth_ = 0;
  Lasting* dropped_ = nullptr;  // each knows the one dropped before it
};

using Turn = Turns::Turn;

}  // namespace qvn::memory
