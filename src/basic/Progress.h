#pragma once

#include <QString>

namespace tavrelin {

/// Where a rule that takes long says how far it is: the window shows it, the command line and
/// whoever does not care fill it with NoProgress. Rules take a reference and speak through
/// LongWork.
class Progress {
 public:
  /// Whether the operator may break a piece of work off. What was done until then stays, or is
  /// taken back: that is the rule's to say.
  enum class Cancel { Never, Allowed };
  static constexpr int Unknown = 0;  ///< a total that is not known before the end

  virtual ~Progress() = default;
  /// A piece of work begins. `doing` is a sentence for the operator, "Posting the tournament.";
  /// `total` counts steps. One that begins within another is a part of it.
  virtual void Begin(const QString& doing, int total, Cancel cancel) = 0;
  /// So many steps are done. Costs next to nothing and may be called for every row. False once the
  /// operator has cancelled.
  virtual bool Step(int done) = 0;
  virtual void End() = 0;
};

/// One piece of long work, from the line where it stands to the end of its block.
///
///     LongWork work(progress, u"Posting the tournament."_s, classes, Progress::Cancel::Allowed);
///     for (...) {
///       if (!work.Step()) return Cancelled();
///       ...
///     }
class LongWork {
 public:
  LongWork(Progress& progress, const QString& doing, int total = Progress::Unknown,
           Progress::Cancel cancel = Progress::Cancel::Never)
      : progress_(progress) {
    progress_.Begin(doing, total, cancel);
  }
  ~LongWork() { progress_.End(); }
  LongWork(const LongWork&) = delete;
  LongWork& operator=(const LongWork&) = delete;

  /// Another step begins, or so many. False once the operator has cancelled; work that cannot be
  /// cancelled need not look at it.
  bool Step(int steps = 1) {
    const bool goesOn = progress_.Step(done_);
    done_ += steps;
    return goesOn;
  }

 private:
  Progress& progress_;
  int done_ = 0;
};

/// Nobody looks, nobody cancels.
class NoProgress : public Progress {
 public:
  void Begin(const QString&, int, Cancel) override {}
  bool Step(int) override { return true; }
  void End() override {}
};

}  // namespace tavrelin
