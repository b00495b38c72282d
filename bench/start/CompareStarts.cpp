// Starts the empty window and the program's in turn and compares their medians and peaks of memory.
//
//     QT_QPA_PLATFORM=offscreen tavrelin_bench_start DATABASE

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

namespace {

struct Run {
  double milliseconds = 0;
  long peakKilobytes = 0;
};

Run Start(const std::string& program, const char* argument) {
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child == 0) {
    execl(program.c_str(), program.c_str(), argument, static_cast<char*>(nullptr));
    _exit(127);
  }
  int status = 0;
  rusage usage{};
  wait4(child, &status, 0, &usage);
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  if (status != 0) std::fprintf(stderr, "%s ended with %d\n", program.c_str(), status);
  return {took.count(), usage.ru_maxrss};
}

Run Median(std::vector<Run> runs) {
  const auto middle = runs.begin() + static_cast<long>(runs.size() / 2);
  std::nth_element(runs.begin(), middle, runs.end(),
                   [](const Run& a, const Run& b) { return a.milliseconds < b.milliseconds; });
  return *middle;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string self = argv[0];
  const std::string folder = self.substr(0, self.rfind('/') + 1);
  const char* database = argc > 1 ? argv[1] : nullptr;
  constexpr int Rounds = 21;
  std::vector<Run> empty, window;
  for (int round = 0; round < Rounds; ++round) {
    empty.push_back(Start(folder + "tavrelin_start_empty", nullptr));
    window.push_back(Start(folder + "tavrelin_start_window", database));
  }
  const Run bare = Median(empty), ours = Median(window);
  std::printf("empty window  %7.1f ms  %7ld kB\n", bare.milliseconds, bare.peakKilobytes);
  std::printf("tavrelin      %7.1f ms  %7ld kB\n", ours.milliseconds, ours.peakKilobytes);
  std::printf("ratio         %7.2f     %7.2f\n", ours.milliseconds / bare.milliseconds,
              static_cast<double>(ours.peakKilobytes) / static_cast<double>(bare.peakKilobytes));
  return 0;
}
