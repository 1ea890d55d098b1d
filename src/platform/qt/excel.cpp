#include "platform/qt/excel.h"

#ifdef _WIN32

#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

namespace platform {

namespace {

// A call that the automation object refused.
struct Refused {};

void must(HRESULT result) {
  if (FAILED(result)) throw Refused{};
}

std::wstring wide(const std::string& text) {
  const int bytes = static_cast<int>(text.size());
  std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, nullptr, 0)), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), bytes, result.data(), static_cast<int>(result.size()));
  return result;
}

struct Variant {
  Variant() { VariantInit(&value); }
  explicit Variant(bool flag) : Variant() {
    value.vt = VT_BOOL;
    value.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  }
  explicit Variant(const std::wstring& text) : Variant() {
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  }
  Variant(Variant&& other) noexcept : value(std::exchange(other.value, VARIANT{})) {}
  Variant& operator=(Variant&& other) noexcept {
    std::swap(value, other.value);
    return *this;
  }
  ~Variant() { VariantClear(&value); }
  VARIANT value;
};

// object.name(arguments...), read, called or, with DISPATCH_PROPERTYPUT, set.
Variant invoke(const Variant& object, const wchar_t* name, WORD kind, std::initializer_list<const Variant*> arguments) {
  if (object.value.vt != VT_DISPATCH || object.value.pdispVal == nullptr) throw Refused{};
  std::wstring own_name(name);
  LPOLESTR names = own_name.data();
  DISPID id = 0, put = DISPID_PROPERTYPUT;
  must(object.value.pdispVal->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id));
  std::vector<VARIANT> list;
  for (const Variant* argument : arguments) list.push_back(argument->value);
  std::reverse(list.begin(), list.end());
  DISPPARAMS parameters{list.data(), nullptr, static_cast<UINT>(list.size()), 0};
  if (kind == DISPATCH_PROPERTYPUT) {
    parameters.rgdispidNamedArgs = &put;
    parameters.cNamedArgs = 1;
  }
  Variant result;
  must(object.value.pdispVal->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, &result.value, nullptr,
                                     nullptr));
  return result;
}

constexpr WORD get = DISPATCH_PROPERTYGET | DISPATCH_METHOD;

bool set_cell(const Variant& sheet, const Cell& cell) {
  try {
    const Variant address(wide(cell.address));
    // The apostrophe in front makes it a text, and doesn't show.
    const Variant text(L"'" + wide(cell.text));
    invoke(invoke(sheet, L"Range", get, {&address}), L"Value", DISPATCH_PROPERTYPUT, {&text});
    return true;
  } catch (const Refused&) {
    return false;
  }
}

Variant started_excel() {
  Variant excel;
  CLSID id;
  if (FAILED(CLSIDFromProgID(L"excel.application", &id))) return excel;
  IDispatch* object = nullptr;
  if (FAILED(CoCreateInstance(id, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, reinterpret_cast<void**>(&object))))
    return excel;
  excel.value.vt = VT_DISPATCH;
  excel.value.pdispVal = object;
  return excel;
}

Variant sheet_of(const Variant& book, const std::string& name) {
  try {
    const Variant wanted(wide(name));
    return invoke(book, L"Worksheets", get, {&wanted});
  } catch (const Refused&) {
    return {};
  }
}

// With a failure the workbook is closed as it was, and so is the program.
Sheet_outcome fill(const Variant& excel, const Sheet_job& job) {
  const Variant yes(true), no(false), path(wide(job.workbook));
  try {
    const Variant book = invoke(invoke(excel, L"Workbooks", get, {}), L"Open", get, {&path});
    const Variant sheet = sheet_of(book, job.sheet);
    if (sheet.value.vt == VT_DISPATCH) {
      invoke(excel, L"Visible", DISPATCH_PROPERTYPUT, {&yes});
      invoke(excel, L"UserControl", DISPATCH_PROPERTYPUT, {&yes});
      invoke(sheet, L"Select", get, {});
      bool all_set = true;
      for (const Cell& cell : job.cells) all_set = set_cell(sheet, cell) && all_set;
      invoke(book, L"Save", get, {});
      return all_set ? Sheet_outcome::filled : Sheet_outcome::bad_cell;
    }
    invoke(book, L"Close", get, {&no});
    invoke(excel, L"Quit", get, {});
    return Sheet_outcome::no_sheet;
  } catch (const Refused&) {
    invoke(excel, L"DisplayAlerts", DISPATCH_PROPERTYPUT, {&no});
    invoke(excel, L"Quit", get, {});
    return Sheet_outcome::failed;
  }
}

}  // namespace

Sheet_outcome excel_fill(const Sheet_job& job) {
  const bool begun = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
  Sheet_outcome outcome = Sheet_outcome::no_program;
  {
    const Variant excel = started_excel();
    if (excel.value.vt == VT_DISPATCH) try {
        outcome = fill(excel, job);
      } catch (const Refused&) {
        outcome = Sheet_outcome::failed;
      }
  }
  if (begun) CoUninitialize();
  return outcome;
}

}  // namespace platform

#else

namespace platform {

Sheet_outcome excel_fill(const Sheet_job&) {
  return Sheet_outcome::no_program;
}

}  // namespace platform

#endif
