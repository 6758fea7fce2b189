#include "wire.h"

namespace ovl::testing {
namespace {

constexpr int kBitsOfCharacter = 10;
constexpr int kIdleCharacters = 4;  // a FIFO that is not full hands over after so many times of a character

}  // namespace

void Wire::SetSpeed(unsigned bits_a_second) {
  if (bits_a_second == 0) return;
  character_ = std::chrono::nanoseconds(1'000'000'000LL * kBitsOfCharacter / bits_a_second);
}

void Wire::Send(std::string_view characters, Clock::time_point now) {
  if (waiting_.empty() && !characters.empty()) due_ = now + character_;
  waiting_.insert(waiting_.end(), characters.begin(), characters.end());
}

void Wire::Carry(Clock::time_point now) {
  for (; !waiting_.empty() && due_ <= now; due_ += character_) {
    Count();
    const int times = Happens(hardware_.lost) ? 0 : Happens(hardware_.doubled) ? 2 : 1;
    if (times > 0 && received_.empty()) first_ = due_;
    if (times > 0) last_ = due_;
    received_.append(static_cast<std::size_t>(times), waiting_.front());
    waiting_.pop_front();
  }
}

void Wire::Count() {
  constexpr std::chrono::milliseconds kPause(200);
  if (due_ - carried_ > kPause) stretch_ = {0, -character_};
  stretch_.time += stretch_.characters == 0 ? character_ : due_ - carried_;
  ++stretch_.characters;
  carried_ = due_;
  if (stretch_.characters > longest_.characters) longest_ = stretch_;
}

double Wire::Share() const {
  if (longest_.characters < 2) return 0;
  const auto least = character_ * static_cast<Clock::rep>(longest_.characters - 1);
  return std::chrono::duration<double>(least) / std::chrono::duration<double>(longest_.time);
}

// An adapter sends what it has at fixed times, a chip when its FIFO is half full or the line falls idle.
Clock::time_point Wire::HandOver() const {
  if (received_.size() >= std::max<std::size_t>(hardware_.fifo / 2, 1)) return last_;
  if (hardware_.latency.count() > 0) return first_ + hardware_.latency;
  return last_ + kIdleCharacters * character_;
}

std::string Wire::Arrived(Clock::time_point now) {
  Carry(now);
  if (received_.empty() || HandOver() > now) return {};
  return std::exchange(received_, {});
}

std::optional<Clock::time_point> Wire::Next() const {
  std::optional<Clock::time_point> next;
  if (!waiting_.empty()) next = due_;
  if (!received_.empty()) next = next ? std::min(*next, HandOver()) : HandOver();
  return next;
}

}  // namespace ovl::testing
