// Every host routine on texts of 10 to 50 code units, as in macros.
#include "HostJobs.h"

namespace benchmarks {

void addShortJobs() {
  const auto add = [](const char* name, auto routine, auto... arguments) {
    addHostJob("short", name, routine, arguments...);
  };
  const std::u16string model = u"Residuals of the linear model";
  const std::u16string mean = u"mean (in millimetres) of A";
  const std::u16string spaced = u"mean, median, variance, count";
  const std::u16string list = u"mean,median,variance,count";

  add("VB_StrLeft", VB_StrLeft, model, 19);
  add("VB_StrRight", VB_StrRight, model, 16);
  add("VB_StrConcat", VB_StrConcat, u"Residuals", u" of the ", u"linear ", u"model ", u"(fitted",
      u")");
  add("VB_StrLTrim", VB_StrLTrim, u"  Residuals of model A   ");
  add("VB_StrRTrim", VB_StrRTrim, u"  Residuals of model A   ");
  add("VB_StrLRTrim", VB_StrLRTrim, u"  Residuals of model A   ");
  add("VB_RemoveChar one unit", VB_RemoveChar, u"2026-11-22 14-30-05", u"-");
  add("VB_RemoveChar two units", VB_RemoveChar, u"mean//sum//-count", u"//");
  add("VB_RemoveNonNumericChar", VB_RemoveNonNumericChar, u"n = 1,234 of 56 cases");
  add("VB_RemoveColon", VB_RemoveColon, u"Residuals: model A: fitted");
  add("StrFromTo", StrFromTo, model, 11, 23);
  add("StrBetween", StrBetween, model, 10, 24);
  add("StrFromChrToChr", StrFromChrToChr, mean, u"(", u")");
  add("StrBetweenChrAndChr", StrBetweenChrAndChr, mean, u"(", u")");
  add("VB_CommonChar", VB_CommonChar, u"Residuals of the linear: model", u",;:");
  add("ChrCount one unit", ChrCount, spaced, u",");
  add("ChrCount two units", ChrCount, spaced, u", ");

  addReplaceJob("short", list);
  add("VB_Replace growing", VB_Replace, list, u",", u", ");
  add("VB_Replace shrinking", VB_Replace, spaced, u", ", u",");
  add("VB_Replace deletion", VB_Replace, list, u",", u"");
  add("VB_Replace2", VB_Replace2, u"mean=1;median=2;count=3", u"=", u": ", u";", u", ");

  add("VB_LocalAN", VB_LocalAN, u"generalised linear", u"Model", u"US");
  add("VB_LocalAN2", VB_LocalAN2, u"generalised linear", u"Model", u"FR", 0, -1, 0);
  add("VB_LowerFirst", VB_LowerFirst, model, u"US", 0);
  add("VB_UpperFirst", VB_UpperFirst, u"residuals of the model");
  add("VB_SpStrSp", VB_SpStrSp, u"residuals of the model");
  add("VB_PStrP", VB_PStrP, u"residuals of the model");
  add("VB_BStrB", VB_BStrB, u"residuals of the model");
  add("VB_SingPlural", VB_SingPlural, u"missing observation", u"missing observations", 2);
  add("VB_QUVARDHTMLProcessor tokens", VB_QUVARDHTMLProcessor, u"Say <QM>a<CM> b<QM><BR>and go on");
  add("VB_QUVARDHTMLProcessor plain", VB_QUVARDHTMLProcessor, model);

  add("Cpp_DecimalFormat", Cpp_DecimalFormat, 10);
  add("VB_OutputFormat", VB_OutputFormat, 0.25);
  add("VB_OptimalFormat plain", VB_OptimalFormat, 3.14159, 4, -1, 0);
  add("VB_OptimalFormat exponent", VB_OptimalFormat, 1234567.25, 4, -1, 0);
  const auto setFormat = [](int32_t digits) {
    BSTR format = nullptr;
    VB_SetFormat(&format, 1, 0, digits);
    return format;
  };
  add("VB_SetFormat", setFormat, 11);
}

}  // namespace benchmarks
