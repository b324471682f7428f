// Every host routine on texts of 10 to 50 units, as macros have them, against the floor.
#include "HostJob.h"

namespace benchmarks {
namespace {

// The routine, the route of its texts, its result, and its arguments.
template <typename ItsRoute, typename Routine, typename... Arguments>
Job& addShort(const char* name, Routine routine, ItsRoute route, const Ready& ready,
              Arguments... arguments) {
  return addHostJob("short", name, route, ready, routine, arguments...);
}

void addStringJobs() {
  const ViaBuffer route;
  addShort("VB_StrLeft", VB_StrLeft, route, u"Residuals of the li",
           u"Residuals of the linear model", 19);
  addShort("VB_StrRight", VB_StrRight, route, u"the linear model", u"Residuals of the linear model",
           16);
  addShort("VB_StrConcat", VB_StrConcat, route, u"Residuals of the linear model (fitted)",
           u"Residuals", u" of the ", u"linear ", u"model ", u"(fitted", u")");
  addShort("VB_StrLTrim", VB_StrLTrim, route, u"Residuals of model A   ",
           u"  Residuals of model A   ");
  addShort("VB_StrRTrim", VB_StrRTrim, route, u"  Residuals of model A",
           u"  Residuals of model A   ");
  addShort("VB_StrLRTrim", VB_StrLRTrim, route, u"Residuals of model A",
           u"  Residuals of model A   ");
  addShort("VB_RemoveChar one unit", VB_RemoveChar, route, u"20261122 143005",
           u"2026-11-22 14-30-05", u"-");
  addShort("VB_RemoveChar two units", VB_RemoveChar, route, u"mean/sum/-count",
           u"mean//sum//-count", u"//");
  addShort("VB_RemoveNonNumericChar", VB_RemoveNonNumericChar, route, u"123456",
           u"n = 1,234 of 56 cases");
  addShort("VB_RemoveColon", VB_RemoveColon, ViaUnits(), u"Residuals model A fitted",
           u"Residuals: model A: fitted");
  addShort("StrFromTo", StrFromTo, route, u"of the linear", u"Residuals of the linear model", 11,
           23);
  addShort("StrBetween", StrBetween, route, u"of the linear", u"Residuals of the linear model", 10,
           24);
  addShort("StrFromChrToChr", StrFromChrToChr, route, u"(in millimetres)",
           u"mean (in millimetres) of A", u"(", u")");
  addShort("StrBetweenChrAndChr", StrBetweenChrAndChr, ViaObject(), u"in millimetres",
           u"mean (in millimetres) of A", u"(", u")");
  addShort("VB_CommonChar", VB_CommonChar, ViaBufferToNumber(), -1,
           u"Residuals of the linear: model", u",;:");
  addShort("ChrCount one unit", ChrCount, ViaBufferToNumber(), 3, u"mean, median, variance, count",
           u",");
  addShort("ChrCount two units", ChrCount, ViaBufferToNumber(), 3, u"mean, median, variance, count",
           u", ");
}

void addReplacementJobs() {
  addReplaceToAndFro("short", u"mean,median,variance,count", u"mean;median;variance;count");
  addShort("VB_Replace growing", VB_Replace, ViaUnits(), u"mean, median, variance, count",
           u"mean,median,variance,count", u",", u", ");
  addShort("VB_Replace shrinking", VB_Replace, ViaUnits(), u"mean,median,variance,count",
           u"mean, median, variance, count", u", ", u",");
  addShort("VB_Replace deletion", VB_Replace, ViaUnits(), u"meanmedianvariancecount",
           u"mean,median,variance,count", u",", u"");
  addShort("VB_Replace2", VB_Replace2, ViaBufferAndUnits(), u"mean: 1, median: 2, count: 3",
           u"mean=1;median=2;count=3", u"=", u": ", u";", u", ");
}

void addPhraseJobs() {
  const ViaBuffer route;
  addShort("VB_LocalAN", VB_LocalAN, route, u"Generalised linear model", u"generalised linear",
           u"Model", u"US");
  addShort("VB_LocalAN2", VB_LocalAN2, route, u"model generalised linear", u"generalised linear",
           u"Model", u"FR", 0, -1, 0);
  addShort("VB_LowerFirst", VB_LowerFirst, route, u"residuals of the model",
           u"Residuals of the model", u"US", 0);
  addShort("VB_UpperFirst", VB_UpperFirst, route, u"Residuals of the model",
           u"residuals of the model");
  addShort("VB_SpStrSp", VB_SpStrSp, ViaObject(), u" residuals of the model ",
           u"residuals of the model");
  addShort("VB_PStrP", VB_PStrP, route, u"(residuals of the model)", u"residuals of the model");
  addShort("VB_BStrB", VB_BStrB, route, u"[residuals of the model]", u"residuals of the model");
  addShort("VB_SingPlural", VB_SingPlural, ViaCopy(), u"missing observations",
           u"missing observation", u"missing observations", 2);
  addShort("VB_QUVARDHTMLProcessor tokens", VB_QUVARDHTMLProcessor, route,
           u"Say \"a, b\"\nand go on", u"Say <QM>a<CM> b<QM><BR>and go on");
  addShort("VB_QUVARDHTMLProcessor plain", VB_QUVARDHTMLProcessor, route,
           u"Residuals of the linear model", u"Residuals of the linear model");
}

void addPatternJobs() {
  const ViaBuffer route;
  addShort("Cpp_DecimalFormat", Cpp_DecimalFormat, route, u"0.0000000000", 10);
  addShort("VB_OutputFormat", VB_OutputFormat, route, u"0.###################", 0.25);
  addShort("VB_OptimalFormat plain", VB_OptimalFormat, route, u"0.0000", 3.14159, 4, -1, 0);
  addShort("VB_OptimalFormat exponent", VB_OptimalFormat, route, u"0.0000E+0", 1234567.25, 4, -1,
           0);

  const auto lastOf = [](auto fill) {
    BSTR formats[3];
    fill(formats);
    releaseBSTR(formats[0]);
    releaseBSTR(formats[1]);
    return Owned(formats[2]);
  };
  addJob("short", "VB_SetFormat, three")
      .add("ours",
           [lastOf] { return lastOf([](BSTR* formats) { VB_SetFormat(formats, 3, 11, -1); }); })
      .add("floor", [lastOf] {
        return lastOf([](BSTR* formats) {
          for (int i = 0; i < 3; ++i) formats[i] = SysAllocString2(L"0.0000000000");
        });
      });
}

}  // namespace

void addShortJobs() {
  addStringJobs();
  addReplacementJobs();
  addPhraseJobs();
  addPatternJobs();
}

}  // namespace benchmarks
