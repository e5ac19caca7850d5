// A flag that is up for the length of a block.
#pragma once

namespace runtime {

/// Down again whichever way the block is left.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

  private:
    bool& flag_;
};

} // namespace runtime
