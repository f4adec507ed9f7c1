#include "hostile/Measured.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wheelwright::hostile {
namespace {

std::string ReadAll(int pipe) {
  std::string text;
  std::array<char, 4096> block{};
  for (ssize_t got = 0; (got = read(pipe, block.data(), block.size())) > 0;) {
    text.append(block.data(), static_cast<std::size_t>(got));
  }
  return text;
}

// The text that the call gives in a child of this process, and what the child took.
std::string InChild(const std::function<std::string()>& call, rusage& usage) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) {
    const std::string text = call();
    const bool written =
        write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  std::string text = ReadAll(ends[0]);
  close(ends[0]);
  int status = 0;
  wait4(child, &status, 0, &usage);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? text : "crashed";
}

}  // namespace

Measured Measure(const std::function<void()>& prepare, const std::function<std::string()>& call) {
  rusage usage{};
  const auto preparation = [&prepare] {
    prepare();
    return std::string();
  };
  InChild(preparation, usage);
  const auto start = std::chrono::steady_clock::now();
  Measured measured;
  measured.outcome = InChild(call, usage);
  measured.seconds =
      std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  measured.megabytes = static_cast<int>(usage.ru_maxrss / 1024);
  return measured;
}

}  // namespace wheelwright::hostile
