// QUVARDBits FOLDER [ROUTINE]: compares the results of the numeric routines, or of one of them, with the
// rows in FOLDER, which numerics/bits/make.py writes. Prints the first rows that differ and returns 1.
//
// The program defines the platform's mathematical functions, and the loader binds the library to these
// definitions. They return the correctly rounded values in functions.txt, so the results have the same
// bits on every platform. A call that is not in functions.txt is a failure. On macOS the loader binds
// the library to the platform's functions, so platform.txt is not read.
#include <fstream>
#include <functional>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "QUVARDBS1C.h"
#include "support/Doubles.h"

namespace {

// All NaNs are the same.
uint64_t bitsOf(double x) { return std::bit_cast<uint64_t>(x == x ? x : kNaN); }
uint64_t bitsOf(int32_t n) { return static_cast<uint32_t>(n); }

void read(std::istream& row, int32_t& n) { row >> n; }

void read(std::istream& row, double& x) {
  std::string word;
  row >> word;
  const bool isNaN = word == "nan";
  word.resize(16, '0');
  x = isNaN ? kNaN : std::bit_cast<double>(uint64_t{std::stoull(word, nullptr, 16)});
}

template <typename... Numbers>
std::string show(Numbers... numbers) {
  std::ostringstream text;
  [[maybe_unused]] const char* separator = "";
  ((text << std::setprecision(17) << std::exchange(separator, ", ") << numbers), ...);
  return text.str();
}

// The results of the platform's functions by name and bits of the arguments.
std::map<std::pair<std::string, std::vector<uint64_t>>, double> answers;

// The calls in the current row that have no answer.
std::string unanswered;

template <typename... Arguments>
double answer(const char* function, Arguments... arguments) {
  const auto found = answers.find({function, {bitsOf(arguments)...}});
  if (found != answers.end()) return found->second;
  unanswered += std::string("\n  calls    ") + function + '(' + show(arguments...) + ')';
  return 0.0;
}

// Calls a routine with the arguments of a row. Returns a description of the failure, or "".
using Check = std::function<std::string(std::istream&)>;

template <typename Result, typename... Parameters>
Check of(Result (*routine)(Parameters...)) {
  return [routine](std::istream& row) -> std::string {
    const auto readAll = [&](auto&... numbers) { (read(row, numbers), ...); };
    const auto showAll = [](auto... numbers) { return show(numbers...); };
    const auto allBits = [](auto... numbers) { return std::vector{bitsOf(numbers)...}; };
    std::tuple<Parameters...> arguments;
    std::apply(readAll, arguments);
    const std::tuple results{std::apply(routine, arguments)};
    std::tuple expected = results;
    std::apply(readAll, expected);
    const std::string calls = std::exchange(unanswered, "");
    if (std::apply(allBits, results) == std::apply(allBits, expected) && calls.empty()) return "";
    return '(' + std::apply(showAll, arguments) + ")\n  returns  " + std::apply(showAll, results) +
           "\n  expected " + std::apply(showAll, expected) + calls;
  };
}

// The status and the values of the variables after the call.
auto linear(double x1, double x2, double y1, double y2, double x, double y, HostBool forward) {
  const int32_t status = LinearInterpol(x1, x2, y1, y2, &x, &y, forward);
  return std::tuple(status, x, y);
}

auto quadratic(double x1, double x2, double x3, double y1, double y2, double y3, double x,
               double xSecond, double y, HostBool forward) {
  const int32_t status = QuadraticInterpol(x1, x2, x3, y1, y2, y3, &x, &xSecond, &y, forward);
  return std::tuple(status, x, xSecond, y);
}

template <typename... Routines>
std::map<std::string, Check> checksOf(const char* names, Routines... routines) {
  std::map<std::string, Check> checks{{"LinearInterpol", of(linear)},
                                      {"QuadraticInterpol", of(quadratic)}};
  std::istringstream list(names);
  std::string name;
  ((std::getline(list >> std::ws, name, ','), checks[name] = of(routines)), ...);
  return checks;
}
#define CHECKS_OF(...) checksOf(#__VA_ARGS__, __VA_ARGS__)

const auto kRoutines =
    CHECKS_OF(ASin, Cnk, FSgn, FSign, Fact, GammaLn, Int05, Int05LU, Int05c, IsEven, IsEvenLng,
              IsLong, IsLongP, LCD, LCD2, LCDDbl, Log10, LogExpAPlusExpB, Max, Min, Mod, ModDbl, Pi,
              SumCnk, expm1x, spow, sqr);

// Stores a row of functions.txt.
void addAnswer(const std::string& function, std::istream& row) {
  std::vector<uint64_t> arguments;
  double result = 0.0;
  for (read(row, result); row.peek() == ' '; read(row, result)) arguments.push_back(bitsOf(result));
  answers[{function, arguments}] = result;
}

// Calls `use` with the routine's name and the row, for each row of a file.
void forEachRow(const std::string& path, auto use) {
  std::ifstream file(path);
  std::string name;
  for (std::string line; std::getline(file, line);) {
    std::istringstream row(line);
    if (line.ends_with(':')) {
      name = line.substr(0, line.size() - 1);
    } else {
      use(name, row);
    }
  }
}

}  // namespace

#define OF_PLATFORM __attribute__((visibility("default"))) double
extern "C" {
OF_PLATFORM atan(double x) noexcept { return answer("atan", x); }
OF_PLATFORM exp(double x) noexcept { return answer("exp", x); }
OF_PLATFORM log(double x) noexcept { return answer("log", x); }
OF_PLATFORM log10(double x) noexcept { return answer("log10", x); }
OF_PLATFORM pow(double x, double y) noexcept { return answer("pow", x, y); }
}

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  const std::string folder = argv[1], only = argc > 2 ? argv[2] : "";
  std::size_t rows = 0, failures = 0;
  const auto check = [&](const std::string& name, std::istream& row) {
    if (!only.empty() && name != only) return;
    ++rows;
    const std::string failure = kRoutines.at(name)(row);
    if (!failure.empty() && ++failures <= 10) std::cout << name << failure << '\n';
  };
  forEachRow(folder + "/functions.txt", addAnswer);
  forEachRow(folder + "/own.txt", check);
#ifndef __APPLE__
  forEachRow(folder + "/platform.txt", check);
#endif
  std::cout << rows << " rows, " << failures << " failures\n";
  return rows > 0 && failures == 0 ? 0 : 1;
}
