// Loads both libraries at run time, from the program's own folder.
#ifndef EXAMPLES_HOSTLIBRARY_H
#define EXAMPLES_HOSTLIBRARY_H

#include <dlfcn.h>

#include <filesystem>
#include <stdexcept>
#include <string>

// Before QUVARDCR1C.hpp, which overloads some routines: decltype(&LinearInterpol) is ambiguous there.
#include "QUVARDBS1C.h"
#include "QUVARDCR1C.h"

#ifdef __APPLE__
inline std::string programFolder() { return "@executable_path"; }  // dlopen expands it
#else
inline std::string programFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}
#endif

class SharedLibrary {
 public:
  explicit SharedLibrary(const std::string& file) {
    handle_ = dlopen((programFolder() + "/" + file).c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle_ == nullptr) throw std::runtime_error("cannot load " + file + ": " + dlerror());
  }
  SharedLibrary(const SharedLibrary&) = delete;
  SharedLibrary& operator=(const SharedLibrary&) = delete;
  ~SharedLibrary() { dlclose(handle_); }

  // The address of a routine. Converts to the type of the function pointer that it is assigned to.
  class Routine {
   public:
    explicit Routine(void* address) : address_(address) {}
    template <typename Function>
    operator Function*() const {
      return reinterpret_cast<Function*>(address_);
    }

   private:
    void* address_;
  };

  Routine routine(const std::string& name) const {
    void* const address = dlsym(handle_, name.c_str());
    if (address == nullptr) throw std::runtime_error("the library does not export " + name);
    return Routine(address);
  }

 private:
  void* handle_;
};

// Function pointers to the routines that the report calls.
struct HostLibrary {
  SharedLibrary strings{"QUVARDCR1C.dll"};
  SharedLibrary library{"QUVARDBS1C.dll"};

#define QUVARD_ROUTINE(from, name) decltype(&::name) name = (from).routine(#name)
  QUVARD_ROUTINE(strings, SysAllocString16);
  QUVARD_ROUTINE(strings, releaseBSTR);

  QUVARD_ROUTINE(library, VB_LocalAN2);
  QUVARD_ROUTINE(library, VB_UpperFirst);
  QUVARD_ROUTINE(library, VB_StrLRTrim);
  QUVARD_ROUTINE(library, VB_StrLeft);
  QUVARD_ROUTINE(library, VB_StrRight);
  QUVARD_ROUTINE(library, VB_StrConcat);
  QUVARD_ROUTINE(library, VB_RemoveChar);
  QUVARD_ROUTINE(library, VB_RemoveColon);
  QUVARD_ROUTINE(library, VB_RemoveNonNumericChar);
  QUVARD_ROUTINE(library, ChrCount);
  QUVARD_ROUTINE(library, StrFromTo);
  QUVARD_ROUTINE(library, StrFromChrToChr);
  QUVARD_ROUTINE(library, StrBetweenChrAndChr);
  QUVARD_ROUTINE(library, VB_Replace);
  QUVARD_ROUTINE(library, VB_Replace2);
  QUVARD_ROUTINE(library, VB_SpStrSp);
  QUVARD_ROUTINE(library, VB_PStrP);
  QUVARD_ROUTINE(library, VB_BStrB);
  QUVARD_ROUTINE(library, VB_SingPlural);
  QUVARD_ROUTINE(library, VB_QUVARDHTMLProcessor);
  QUVARD_ROUTINE(library, VB_SetFormat);
  QUVARD_ROUTINE(library, VB_OutputFormat);
  QUVARD_ROUTINE(library, VB_OptimalFormat);
  QUVARD_ROUTINE(library, QuadraticInterpol);
  QUVARD_ROUTINE(library, LinearInterpol);
  QUVARD_ROUTINE(library, Cnk);
  QUVARD_ROUTINE(library, SumCnk);
  QUVARD_ROUTINE(library, GammaLn);
  QUVARD_ROUTINE(library, Int05);
  QUVARD_ROUTINE(library, Int05c);
  QUVARD_ROUTINE(library, Int05LU);
#undef QUVARD_ROUTINE
};

#endif
