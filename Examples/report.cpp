// Prints a report with the results of host routines and numeric routines.
#include <cstdio>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "HostLibrary.h"
#include "PatternPrinter.h"
#include "QUVARDCR1C.hpp"

namespace {

class Report {
 public:
  Report(std::string adjective, std::string noun)
      : adjective_(std::move(adjective)), noun_(std::move(noun)) {}

  void print() {
    heading("Report phrases");
    printPhrases();
    heading("Cleaned texts");
    printTexts();
    heading("Numbers and the patterns chosen for them");
    printNumbers();
    heading("Statistics");
    printStatistics();
  }

 private:
  // quvard::HostString calls releaseBSTR directly, and so needs the libraries linked.
  using Owned = std::unique_ptr<char16_t, void (*)(BSTR)>;
  Owned own(BSTR handle) const { return {handle, host_.releaseBSTR}; }
  Owned text(const std::string& utf8) const {
    return own(host_.SysAllocString16(quvard::utf16FromUtf8(utf8).c_str()));
  }

  // Returns the text of a host string, and releases it.
  std::string take(BSTR result) const { return quvard::utf8FromUtf16(own(result).get()); }

  // Calls a host routine and returns the text of its result.
  template <typename Routine, typename... Arguments>
  std::string call(Routine routine, const Arguments&... arguments) const {
    return take(routine(argument(arguments)...));
  }
  struct Argument {
    Owned handle;
    operator BSTR() const { return handle.get(); }
  };
  Argument argument(const std::string& utf8) const { return {text(utf8)}; }
  Argument argument(const char* utf8) const { return {text(utf8)}; }
  static int32_t argument(int32_t scalar) { return scalar; }
  static double argument(double scalar) { return scalar; }

  static void heading(const std::string& title) {
    std::printf("\n%s\n%s\n\n", title.c_str(), std::string(title.size(), '=').c_str());
  }

  // Appends blanks up to a width in code points.
  static std::string pad(const std::string& text, std::size_t width) {
    std::size_t length = 0;
    for (const char unit : text) length += (unit & 0xC0) != 0x80 ? 1 : 0;
    return length < width ? text + std::string(width - length, ' ') : text;
  }

  static void printRow(const std::vector<std::string>& cells, std::size_t first,
                       std::size_t width) {
    std::string line = "  " + pad(cells[0], first);
    for (std::size_t i = 1; i < cells.size(); ++i) line += pad(cells[i], width);
    line.erase(line.find_last_not_of(' ') + 1);
    std::printf("%s\n", line.c_str());
  }

  void printPhrases() const {
    struct Flags {
      const char* name;
      HostBool upperAdjective, lowerResult, noBlank;
    };
    const Flags columns[] = {{"upper adjective", -1, 0, 0},
                             {"no flag", 0, 0, 0},
                             {"lower result", 0, -1, 0},
                             {"no blank", 0, 0, -1}};
    const std::size_t width = std::max<std::size_t>(17, adjective_.size() + noun_.size() + 3);
    std::vector<std::string> row{""};
    for (const Flags& flags : columns) row.push_back(flags.name);
    printRow(row, 5, width);
    for (const char* const language :
         {"ES", "FR", "IT", "PT", "PL", "US", "DE", "JP", "CS", "CN"}) {
      row = {language};
      for (const Flags& flags : columns) {
        row.push_back(call(host_.VB_LocalAN2, adjective_, noun_, language, flags.upperAdjective,
                           flags.lowerResult, flags.noBlank));
      }
      printRow(row, 5, width);
    }
  }

  void printText(const char* what, const std::string& before, const std::string& after) const {
    std::string line = "  " + pad(what, 28) + pad("«" + before + "»", 32) + "«" + after + "»";
    std::printf("%s\n", line.c_str());
  }

  void printTexts() const {
    const std::string title = "  residuals : model A  ";
    printText("trimmed", title, call(host_.VB_StrLRTrim, title));
    printText("without colons", title, call(host_.VB_RemoveColon, title));
    printText("digits alone", "n = 1,234 cases",
              call(host_.VB_RemoveNonNumericChar, "n = 1,234 cases"));
    printText("without dashes", "2026-11-22", call(host_.VB_RemoveChar, "2026-11-22", "-"));
    printText("between parentheses", "mean (in mm)",
              call(host_.StrBetweenChrAndChr, "mean (in mm)", "(", ")"));
    printText("with their parentheses", "mean (in mm)",
              call(host_.StrFromChrToChr, "mean (in mm)", "(", ")"));
    printText("units 6 to 10", "Model summary", call(host_.StrFromTo, "Model summary", 6, 10));
    printText("one replacement", "a,b,c", call(host_.VB_Replace, "a,b,c", ",", ", "));
    printText("two replacements", "x=1;y=2",
              call(host_.VB_Replace2, "x=1;y=2", "=", ": ", ";", ", "));
    printText("markup tokens", "<QM>a<CM> b<QM>",
              call(host_.VB_QUVARDHTMLProcessor, "<QM>a<CM> b<QM>"));
    for (const int32_t count : {1, 2}) {
      const std::string word = call(host_.VB_SingPlural, noun_, noun_ + "s", count);
      printText(
          "singular and plural", std::to_string(count),
          std::to_string(count) + call(host_.VB_SpStrSp, word) + call(host_.VB_PStrP, "fitted"));
    }
    const Owned list = text("a, b, c"), comma = text(",");
    printText("commas counted", "a, b, c", std::to_string(host_.ChrCount(list.get(), comma.get())));
  }

  void printNumber(double value) const {
    const std::string shown = call(host_.VB_OutputFormat, value);
    const std::string optimal = call(host_.VB_OptimalFormat, value, 3, -1, -1);
    char given[32];
    std::snprintf(given, sizeof given, "%.15g", value);
    printRow({given, optimal, formatNumber(value, optimal), shown, formatNumber(value, shown)}, 20,
             25);
  }

  void printNumbers() const {
    printRow({"value", "pattern at 3 decimals", "printed", "pattern of all decimals", "printed"},
             18, 25);
    for (const double value :
         {0.0, 42.0, 2.5, -1.0 / 3, 0.00012, 1.5e-11, 123456.0, 98765.4321, 12345678901.5}) {
      printNumber(value);
    }
    BSTR formats[1] = {};
    host_.VB_SetFormat(formats, 1, 5, -1);
    const std::string fiveDigits = take(formats[0]);
    std::printf("\n  Pi with the pattern of five digits, %s: %s\n", fiveDigits.c_str(),
                formatNumber(3.14159265358979, fiveDigits).c_str());
  }

  void printStatistics() const {
    double x = 5.0, upper = 0.0, y = 0.0;
    host_.QuadraticInterpol(1, 2, 4, 0, 0, 6, &x, &upper, &y, -1);
    std::printf("  The parabola through (1, 0), (2, 0), (4, 6) has %s at 5", number(y).c_str());
    y = 6.0;
    host_.QuadraticInterpol(1, 2, 4, 0, 0, 6, &x, &upper, &y, 0);
    std::printf(" and takes 6 at %s and %s.\n", number(x).c_str(), number(upper).c_str());
    x = 2.0;
    host_.LinearInterpol(1, 3, 2, 6, &x, &y, -1);
    std::printf("  The line through (1, 2), (3, 6) has %s at 2.\n\n", number(y).c_str());

    std::printf("  Choosing k of 10:");
    for (int k = 0; k <= 10; ++k) std::printf(" %s", number(host_.Cnk(10, k)).c_str());
    std::printf(", %s in all.\n", number(host_.SumCnk(10, 0, 10)).c_str());
    std::printf("  Choosing 5 of 52: %s. ln gamma(100): %s.\n\n", number(host_.Cnk(52, 5)).c_str(),
                number(host_.GammaLn(100)).c_str());

    printRow({"rounded to halves", "away from 0", "closest", "down", "up"}, 20, 14);
    for (const double value : {2.1, 2.25, 2.4, 2.5, 2.6, -2.1, -2.6}) {
      printRow({number(value), number(host_.Int05(value, -1)), number(host_.Int05c(value, -1)),
                number(host_.Int05LU(value, -1, -1)), number(host_.Int05LU(value, -1, 0))},
               20, 14);
    }
  }

  // Prints a number with all its decimals.
  std::string number(double value) const {
    return formatNumber(value, call(host_.VB_OutputFormat, value));
  }

  HostLibrary host_;
  std::string adjective_, noun_;
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 1 && count != 3) {
    std::fprintf(stderr, "usage: %s [ADJECTIVE NOUN]\n", arguments[0]);
    return 2;
  }
  try {
    Report(count == 3 ? arguments[1] : "linear", count == 3 ? arguments[2] : "Model").print();
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
      throw std::runtime_error("cannot write the report");
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "report: %s\n", error.what());
    return 1;
  }
}
