#include "support/ustring-model.h"

#include <cstddef>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "foundation/ustring.h"
#include "support/captured-cerr.h"
#include "support/script.h"
#include "support/ustring-probe.h"
#include "support/ustring-reference.h"

namespace test {
namespace {

/// UTF-16 as ustring takes it, with a terminator.
std::vector<unsigned short> Terminated(Wide const& s) {
  return {s.c_str(), s.c_str() + s.size() + 1};
}

/// Whether UTF-16 from ustring equals a string.
bool IsSame(unsigned short const* units, Wide const& s) {
  Wide copy;
  for (; *units != 0; ++units) copy += static_cast<char16_t>(*units);
  return copy == s;
}

template <class Pattern>
unsigned long RealSearch(Search search, ustring const& s, Pattern const& p, unsigned long pos) {
  switch (search) {
    case kFind:
      return s.find(p, pos);
    case kFindFirstOf:
      return s.find_first_of(p, pos);
    case kFindFirstNotOf:
      return s.find_first_not_of(p, pos);
    case kRfind:
      return s.rfind(p, pos);
    case kFindLastOf:
      return s.find_last_of(p, pos);
    default:
      return s.find_last_not_of(p, pos);
  }
}

class Comparison {
 public:
  explicit Comparison(std::string const& script) : script_(script) {}

  std::string Run() {
    static constexpr Step kSteps[] = {
        {"append", &Comparison::Append},
        {"append(n)", &Comparison::AppendCount},
        {"append(c)", &Comparison::AppendChar},
        {"append(string)", &Comparison::AppendString},
        {"append(u)", &Comparison::AppendPart},
        {"append(self)", &Comparison::AppendSelf},
        {"append(own)", &Comparison::AppendOwn},
        {"assign", &Comparison::Assign},
        {"assign(n)", &Comparison::AssignCount},
        {"assign(c)", &Comparison::AssignChar},
        {"assign(u)", &Comparison::AssignPart},
        {"assign(self)", &Comparison::AssignSelf},
        {"assign(own)", &Comparison::AssignOwn},
        {"assign(string)", &Comparison::AssignString},
        {"wide append", &Comparison::WideAppend},
        {"wide append(c)", &Comparison::WideAppendChar},
        {"wide own", &Comparison::WideOwn},
        {"wide assign", &Comparison::WideAssign},
        {"utf16", &Comparison::Utf16},
        {"search", &Comparison::SearchText},
        {"trim", &Comparison::Trim},
        {"replace", &Comparison::Replace},
        {"operator[]", &Comparison::Poke},
        {"substr", &Comparison::Substr},
        {"compare", &Comparison::Compare},
        {"clear", &Comparison::Clear},
        {"copy", &Comparison::Copy},
        {"move", &Comparison::Move},
        {"swap", &Comparison::Swap},
        {"operator+", &Comparison::Plus},
        {"stream", &Comparison::Stream},
        {"normalize", &Comparison::Normalize},
    };
    CapturedCerr const cerr;
    while (!script_.AtEnd() && difference_.empty() && model_.text.size() < 4000) {
      Step const& step = kSteps[script_.Byte() % (sizeof kSteps / sizeof *kSteps)];
      step_ = step.name;
      (this->*step.run)();
      CompareState(real_, model_);
      Expect(cerr.lines() == model_.warnings, "warnings");
    }
    return difference_;
  }

 private:
  struct Step {
    char const* name;
    void (Comparison::*run)();
  };

  void Expect(bool holds, std::string const& what) {
    if (!holds && difference_.empty()) difference_ = std::string(step_) + ": " + what;
  }

  void CompareState(ustring const& real, Model const& model) {
    Expect(real.c_str() == model.text,
           "text '" + std::string(real.c_str()) + "', not '" + model.text + "'");
    Expect(real.length() == model.text.size(), "length");
    Expect(real.size() == real.length() && real.empty() == model.text.empty(), "size");
    Expect(UstringProbe::DataCapacity(real) == model.capacity, "capacity");
    Expect(UstringProbe::WideCapacity(real) == model.wide_capacity, "wide capacity");
    Expect(IsSame(UstringProbe::Wide(real), model.wide), "wide text");
    Expect(UstringProbe::WideLength(real) == model.wide.size(), "wide length");
  }

  /// Whether the call threw the documented std::out_of_range.
  template <class Call>
  bool Throws(char const* text, Call const& call) {
    try {
      call();
    } catch (std::out_of_range const& error) {
      Expect(std::string(error.what()) == text, "text of the error");
      return true;
    }
    return false;
  }

  void Append() {
    std::string const s = script_.Bytes();
    real_ += s.c_str();
    model_.Append(s);
  }
  void AppendCount() {
    std::string const s = script_.Bytes();
    unsigned long const n = script_.Position(s.size());
    real_.append(s.c_str(), n);
    model_.Append(UpToNul(s).substr(0, n));
  }
  void AppendChar() {
    char const c = script_.Char();
    unsigned const n = script_.Byte() % 9;
    real_.append(c, n);
    model_.Append(std::string(n, c));
  }
  void AppendString() {
    std::string const s = script_.Bytes();
    unsigned long const pos = script_.Position(s.size());
    unsigned long const n = script_.Position(s.size());
    bool const threw = Throws("basic_string::substr", [&] { real_.append(s, pos, n); });
    Expect(threw == (pos > s.size()), "out of range");
    if (!threw) model_.Append(s.substr(pos, n));
  }
  void AppendPart() {
    std::string const s = UpToNul(script_.Bytes());
    unsigned long const pos = script_.Position(s.size());
    unsigned long const n = script_.Position(s.size());
    bool const threw = Throws("substr", [&] { real_.append(ustring(s), pos, n); });
    Expect(threw == (pos > s.size()), "out of range");
    if (!threw) model_.Append(s.substr(pos, n));
  }
  void AppendSelf() {
    unsigned long const pos = script_.Position(model_.text.size());
    unsigned long const n = script_.Position(model_.text.size());
    bool const threw = Throws("substr", [&] { real_.append(real_, pos, n); });
    Expect(threw == (pos > model_.text.size()), "out of range");
    if (!threw) model_.Append(model_.text.substr(pos, n));
  }
  void AppendOwn() {
    unsigned long const n = script_.Position(model_.text.size());
    size_t const from = script_.Byte() % (model_.text.size() + 1);
    real_.append(real_.c_str() + from, n);
    model_.Append(model_.text.substr(from, n));
  }

  void Assign() {
    std::string const s = script_.Bytes();
    real_ = s.c_str();
    model_.Assign(s);
  }
  void AssignCount() {
    std::string const s = script_.Bytes();
    unsigned long const n = script_.Position(s.size());
    real_.assign(s.c_str(), n);
    model_.Assign(UpToNul(s).substr(0, n));
  }
  void AssignChar() {
    char const c = script_.Char();
    unsigned const n = script_.Byte() % 9;
    real_.assign(c, n);
    model_.Assign(std::string(n, c));
  }
  void AssignPart() {
    std::string const s = UpToNul(script_.Bytes());
    unsigned long const pos = script_.Position(s.size());
    unsigned long const n = script_.Position(s.size());
    bool const threw = Throws("substr", [&] { real_.assign(ustring(s), pos, n); });
    Expect(threw == (pos > s.size()), "out of range");
    if (threw) {
      model_.Clear();
    } else {
      model_.Assign(s.substr(pos, n));
    }
  }
  void AssignSelf() {
    unsigned long const pos = script_.Position(model_.text.size());
    unsigned long const n = script_.Position(model_.text.size());
    bool const threw = Throws("substr", [&] { real_.assign(real_, pos, n); });
    Expect(threw == (pos > model_.text.size()), "out of range");
    if (!threw) model_.Assign(std::string(model_.text.substr(pos, n)));
  }
  void AssignOwn() {
    unsigned long const n = script_.Position(model_.text.size());
    size_t const from = script_.Byte() % (model_.text.size() + 1);
    real_.assign(real_.c_str() + from, n);
    if (from == 0) {
      model_.Truncate(n);
    } else {
      model_.Assign(std::string(model_.text.substr(from, n)));
    }
  }
  void AssignString() {
    std::string const s = script_.Bytes();
    unsigned long const pos = script_.Position(s.size());
    unsigned long const n = script_.Position(s.size());
    bool const threw = Throws("basic_string::substr", [&] { real_.assign(s, pos, n); });
    Expect(threw == (pos > s.size()), "out of range");
    if (threw) {
      model_.Clear();
    } else {
      model_.Assign(s.substr(pos, n));
    }
  }

  void WideAppend() {
    Wide const s = script_.Units();
    unsigned long const n = script_.Position(s.size());
    real_.append(Terminated(s).data(), n);
    model_.AppendWide(UpToNul(s).substr(0, n));
  }
  void WideAppendChar() {
    unsigned short const c = script_.Unit();
    unsigned const n = script_.Byte() % 5;
    real_.append(c, n);
    model_.AppendWide(Wide(n, c));
  }
  void WideOwn() {
    unsigned long const n = script_.Position(model_.text.size());
    bool const assign = script_.Byte() % 2 == 0;
    size_t const from = script_.Byte() % (model_.wide.size() + 1);
    unsigned short const* const own = UstringProbe::Wide(real_) + from;
    if (!assign) {
      real_.append(own, n);
      model_.BeginWideAppend();
      model_.AppendUnits(model_.wide.substr(from, n));
    } else {
      real_.assign(own, n);
      AssignOwnWide(from, n);
    }
  }
  void AssignOwnWide(size_t from, unsigned long n) {
    if (from != 0) {
      model_.AssignWide(Wide(model_.wide.substr(from, n)));
    } else if (n < model_.wide.size()) {
      model_.wide.resize(n);
      model_.FillText();
    }
  }
  void WideAssign() {
    Wide const s = script_.Units();
    real_ = Terminated(s).data();
    model_.AssignWide(s);
  }
  void Utf16() {
    unsigned short const* const units = real_.c_str_utf16();
    model_.FillWideIfEmpty();
    Expect(IsSame(units, model_.wide), "result");
    Wide converted;
    Expect(ustring::is_valid(real_) == ToWide(model_.text, converted), "is_valid");
  }

  void SearchText() {
    auto const search = static_cast<Search>(script_.Byte() % 6);
    std::string const pattern = script_.Bytes();
    unsigned long const pos = script_.Position(model_.text.size());
    std::string const seen = UpToNul(pattern);
    unsigned long const expected = ModelSearch(search, model_.text, seen, pos);
    Expect(RealSearch(search, real_, pattern.c_str(), pos) == expected, "char const*");
    Expect(RealSearch(search, real_, pattern, pos) == expected, "std::string");
    Expect(RealSearch(search, real_, ustring(pattern), pos) == expected, "ustring");
    char const c = script_.Char();
    std::string const one = c == '\0' ? "" : std::string(1, c);
    Expect(RealSearch(search, real_, c, pos) == ModelSearch(search, model_.text, one, pos), "char");
  }
  void Trim() {
    unsigned const which = script_.Byte() % 3;
    std::string const set = UpToNul(script_.Bytes());
    size_t const former = model_.text.size();
    size_t end = former;
    while (which != 0 && end > 0 && set.find(model_.text[end - 1]) != std::string::npos) --end;
    size_t begin = 0;
    while (which != 1 && begin < end && set.find(model_.text[begin]) != std::string::npos) ++begin;
    if (which == 0) real_.ltrim(set.c_str());
    if (which == 1) real_.rtrim(ustring(set));
    if (which == 2) real_.trim(set.c_str());
    model_.text = model_.text.substr(begin, end - begin);
    if (model_.text.size() != former) model_.wide.clear();
  }
  void Replace() {
    char const from = script_.Char();
    char const to = script_.CharButNul();
    real_.replace(from, to);
    for (char& c : model_.text) {
      if (c == from) c = to;
    }
  }
  void Poke() {
    if (model_.text.empty()) return;
    size_t const at = script_.Byte() % model_.text.size();
    char const c = script_.CharButNul();
    real_[at] = c;
    model_.text[at] = c;
  }
  void Substr() {
    unsigned long const pos = script_.Position(model_.text.size());
    unsigned long const n = script_.Position(model_.text.size());
    bool const threw = Throws("substr", [&] {
      CompareState(real_.substr(pos, n),
                   Model(pos > model_.text.size() ? std::string() : model_.text.substr(pos, n)));
    });
    Expect(threw == (pos > model_.text.size()), "out of range");
  }
  void Compare() {
    bool const near = script_.Byte() % 2 == 0;
    std::string text = near ? model_.text : UpToNul(script_.Bytes());
    if (near && !text.empty()) text[script_.Byte() % text.size()] = script_.CharButNul();
    ustring const other(text);
    unsigned long const n = script_.Position(text.size());
    int const order = ModelCompare(model_.text, text);
    Expect(real_.compare(other) == order, "all");
    Expect(real_.compare(other, n) == ModelCompare(model_.text.substr(0, n), text.substr(0, n)),
           "n");
    Expect(ustring::compare(real_, other, false) == order, "static");
    int const folded = ModelCompare(Folded(model_.text), Folded(text));
    Expect(ustring::compare(real_, other, true) == folded, "ignoring case");
    Expect((real_ < other) == (order < 0) && (real_ <= other) == (order < 0), "<");
    Expect((real_ > other) == (order > 0) && (real_ >= other) == (order > 0), ">");
    Expect((real_ == other) == (order == 0) && (real_ != other) == (order != 0), "==");
  }

  void Clear() {
    unsigned const which = script_.Byte() % 3;
    if (which == 0) real_.clear();
    if (which == 1) real_.clear_data();
    if (which == 2) real_.clear_wdata();
    if (which != 2) model_.text.clear();
    if (which != 1) model_.wide.clear();
  }
  void Copy() {
    CompareState(ustring(real_), Model(model_.text));
    std::string const s = UpToNul(script_.Bytes());
    ustring target(s);
    Model expected(s);
    target = real_;
    expected.Assign(model_.text);
    CompareState(target, expected);
  }
  void Move() {
    ustring moved(std::move(real_));
    Expect(real_.empty() && *real_.c_str() == '\0', "source not empty");
    real_ = std::move(moved);
    Expect(moved.empty(), "source not empty");
    model_.wide.clear();
  }
  void Swap() {
    swap(real_, other_);
    std::swap(model_.text, other_model_.text);
    std::swap(model_.wide, other_model_.wide);
    std::swap(model_.capacity, other_model_.capacity);
    std::swap(model_.wide_capacity, other_model_.wide_capacity);
    CompareState(other_, other_model_);
  }
  void Plus() {
    std::string const s = script_.Bytes();
    char const c = script_.Char();
    Expect((real_ + s.c_str()).c_str() == model_.text + UpToNul(s), "char const*");
    Expect((real_ + ustring(s)).c_str() == model_.text + UpToNul(s), "ustring");
    Expect((real_ + c).c_str() == model_.text + UpToNul(std::string(1, c)), "char");
    Wide const wide = script_.Units();
    Model sum(model_.text);
    sum.AppendWide(wide);
    CompareState(real_ + Terminated(wide).data(), Model(sum.text));
    unsigned short const unit = script_.Unit();
    Model longer(model_.text);
    longer.AppendWide(Wide(1, unit));
    CompareState(real_ + unit, Model(longer.text));
    model_.warnings += sum.warnings + longer.warnings;
  }
  void Stream() {
    std::stringstream stream;
    stream << real_ << ' ' << real_;
    Expect(stream.str() == model_.text + ' ' + model_.text, "out");
    std::string word;
    std::istringstream(model_.text) >> word;
    std::istringstream in(model_.text);
    in >> real_;
    model_.Assign(word);
  }
  void Normalize() {
    auto const form = script_.Byte() % 2 == 0 ? ustring::NFC : ustring::NFD;
    if (!model_.text.empty()) {
      // normalize() converts again if the first conversion returned nothing.
      model_.FillWideIfEmpty();
      model_.FillWideIfEmpty();
    }
    ustring const result = real_.normalize(form);
    bool const nothing = model_.text.empty() || model_.wide.empty();
    Expect(result.empty() == nothing, "emptiness");
    Expect(result.empty() || UstringProbe::WideLength(result) != 0, "both buffers of the result");
    Expect(result.normalize(form) == result, "twice is once");
    ustring const through = result.normalize(ustring::NFD).normalize(form);
    Expect(through == result, "through the other form");
  }

  Script script_;
  ustring real_;
  Model model_;
  ustring other_;
  Model other_model_;
  char const* step_ = "";
  std::string difference_;
};

}  // namespace

std::string CompareUstringWithModel(std::string const& script) { return Comparison(script).Run(); }

}  // namespace test
