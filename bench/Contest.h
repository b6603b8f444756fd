// Several ways to do the same work, timed side by side.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <sys/resource.h>

class Contest {
 public:
  explicit Contest(const std::string& title) : title_(title) {}

  // The first contender is the one that the others are compared with.
  void Add(const std::string& name, std::function<void()> run) {
    contenders_.push_back({name, std::move(run), {}, {}});
  }

  // Runs all contenders in turn, again and again, so that whatever else the machine does meanwhile
  // hits them alike. Prints the median of each in seconds on the clock and in seconds of processor
  // time, which other programs disturb less, and how the first one compares with the others.
  void Run(int rounds) {
    for (int round = 0; round < rounds; ++round) {
      for (Contender& contender : contenders_) {
        const double clock = Clock();
        const double processor = Processor();
        contender.run();
        contender.processor.push_back(Processor() - processor);
        contender.clock.push_back(Clock() - clock);
      }
    }
    std::printf("\n%s, median of %d\n%-28s%10s%12s\n", title_.c_str(), rounds, "", "clock",
                "processor");
    for (const Contender& contender : contenders_) {
      std::printf("  %-26s%8.3f s%10.3f s\n", contender.name.c_str(), Median(contender.clock),
                  Median(contender.processor));
    }
    const Contender& first = contenders_.front();
    for (size_t i = 1; i < contenders_.size(); ++i) {
      std::printf("  %-26s%10.2f%12.2f\n", (first.name + " / " + contenders_[i].name).c_str(),
                  Median(first.clock) / Median(contenders_[i].clock),
                  Median(first.processor) / Median(contenders_[i].processor));
    }
  }

 private:
  struct Contender {
    std::string name;
    std::function<void()> run;
    std::vector<double> clock;
    std::vector<double> processor;
  };

  static double Clock() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
  }

  // Of this program and of those that it has run.
  static double Processor() {
    double seconds = 0;
    for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
      rusage usage{};
      getrusage(who, &usage);
      for (const timeval& time : {usage.ru_utime, usage.ru_stime}) {
        seconds += static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
      }
    }
    return seconds;
  }

  static double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const size_t middle = values.size() / 2;
    return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
  }

  std::string title_;
  std::vector<Contender> contenders_;
};
