#include <algorithm>

#include "host/application/Automation.h"
#include "host/application/Embedding.h"
#include "host/application/Installation.h"
#include "host/application/UiThread.h"
#include "host/base/Text.h"
#include "host/showcase/SampleBiller.h"
#include "host/showcase/Showcase.h"
#include "host/user/DropList.h"
#include "host/user/Screen.h"
#include "host/user/User.h"

namespace nv::host {

namespace {

enum class Rows { notBlank, changed };

std::wstring padded(std::wstring text, std::size_t width) {
  text.resize(std::max(text.size(), width), L' ');
  return text;
}

bool isBlank(const std::wstring& value) {
  return value.find_first_not_of(L' ') == std::wstring::npos;
}

/// Prints both states of the record as a table with a mark on what changed.
void printRecord(const std::vector<RecordValue>& before, const std::vector<RecordValue>& after, Rows rows) {
  std::size_t nameWidth = 0;
  std::size_t valueWidth = std::wstring_view(L"before").size();
  for (const auto& [property, value] : before) {
    nameWidth = std::max(nameWidth, property.size());
    valueWidth = std::max(valueWidth, value.size());
  }
  const auto row = [&](wchar_t mark, const std::wstring& property, const std::wstring& left,
                       const std::wstring& right) {
    printLine(std::wstring(L"   ") + mark + L' ' + padded(property, nameWidth) + L"  " + padded(left, valueWidth) +
              L"  " + right);
  };
  printLine(L"");
  row(L' ', L"", L"before", L"after");
  for (std::size_t i = 0; i < before.size(); ++i) {
    const std::wstring& left = before[i].value;
    const std::wstring& right = after[i].value;
    const bool changed = left != right;
    if (rows == Rows::changed ? changed : !isBlank(left) || !isBlank(right)) {
      row(changed ? L'*' : L' ', before[i].property, left, right);
    }
  }
  printLine(rows == Rows::changed ? L"\n     All other values are as they were.\n" : L"\n   * changed in the dialog\n");
}

/// What the user enters: into a field by typing, into a list by choosing the row that shows the text.
struct Entry {
  const wchar_t* control;
  const wchar_t* text;
};

class Demo {
 public:
  explicit Demo(const Folders& folders)
      : pictures_(folders.build / L"demo"),
        picturesAsSeen_(std::filesystem::proximate(pictures_).generic_wstring()),
        installation_(folders.installation, folders.standIns),
        user_(thread_) {
    std::filesystem::remove_all(pictures_);
  }
  ~Demo() {
    thread_
        .begin([this] {
          embedding_.reset();
          biller_.reset();
          main_.reset();
        })
        .wait();
  }
  Demo(const Demo&) = delete;
  Demo& operator=(const Demo&) = delete;

  void run() {
    printLine(L"The host creates NVRandom.ClsRandom through COM and hands it a biller.");
    thread_.ask([this] {
      main_ = std::make_unique<HostWindow>(L"NVHost - Bill Payments", POINT{20, 20}, SIZE{1000, 800});
      biller_ = std::make_unique<Biller>([](const std::wstring& event) { printLine(L"     event " + event); });
      setSampleBiller(*biller_, installation_.dllPath());
    });
    showModal();
    showEmbedded();
    printLine(L"Pictures of the dialog are in " + picturesAsSeen_ + L".");
  }

  /// For whoever looks into a failure.
  void takeScreen() const {
    try {
      Picture::ofScreen().save(pictures_ / L"failure.png");
    } catch (const Failure& missing) {
      printLine(missing.text());
    }
  }

 private:
  void showModal() {
    printLine(L"\n1. ShowForm: the dialog is modal, and the host waits for its result.\n");
    const auto before = record();
    auto shown = thread_.begin([this] { return biller_->show(Biller::Show::modal); });
    useDialog(L"modal", {{L"ran_payee_street", L"88 PORT ROAD"},
                         {L"ran_payee_city", L"KENORA"},
                         {L"ran_payee_postal", L"P9N2X4"},
                         {L"txtTransit", L"12345"},
                         {L"txtBankID", L"003"},
                         {L"txtAccount", L"7700123"}});
    user_.await(L"the dialog stays", [&shown] { return UiThread::ready(shown); });
    printLine(L"     ShowForm returns " + std::to_wstring(shown.get()));
    printRecord(before, record(), Rows::notBlank);
  }

  void showEmbedded() {
    printLine(L"2. ShowForm_Remote: the dialog stands in a window of the host, which hears its events.\n");
    const auto before = record();
    thread_.ask([this] {
      embedding_ = windowFor(*biller_);
      embed(*biller_, *embedding_);
      const SIZE size = biller_->size();
      printLine(L"     Get_Width and Get_Height say " + std::to_wstring(size.cx) + L" x " + std::to_wstring(size.cy) +
                L" twips");
      biller_->show(Biller::Show::remote);
    });
    useDialog(L"embedded", {{L"ran_payee_email", L"remit@lakeheadhydro.example"}, {L"ran_payee_contact", L"TREASURY"}});
    printRecord(before, record(), Rows::changed);
  }

  std::vector<RecordValue> record() {
    return thread_.ask([this] { return readRecord(*biller_); });
  }

  /// Fills the dialog in as a user would, and accepts it.
  void useDialog(const std::wstring& name, const std::vector<Entry>& entries) {
    const HWND dialog = user_.awaitDialog(L"frmRandomInfo");
    takePicture(dialog, name + L"-opened.png");
    for (const Entry& entry : entries) enter(user_.awaitControl(dialog, entry.control), entry);
    takePicture(dialog, name + L"-filled.png");
    printLine(L"     presses OK");
    user_.click(user_.awaitControl(dialog, L"cmd_ok"));
    leave(dialog);
  }

  void enter(HWND control, const Entry& entry) {
    const bool list = thread_.ask([control] { return DropList::of(control).has_value(); });
    printLine((list ? L"     chooses " : L"     types   ") + padded(entry.control, 20) + entry.text);
    if (list) {
      user_.choose(control, entry.text);
    } else {
      user_.clear(control);
      user_.type(entry.text);
    }
  }

  /// Waits until the dialog is gone. What it still has to say or to ask is agreed to.
  void leave(HWND dialog) {
    for (;;) {
      bool asks = false;
      user_.await(L"the dialog stays", [&] {
        asks = messageBox(thread_.id()) != nullptr;
        return asks || !IsWindow(dialog);
      });
      if (!asks) return;
      const MessageBoxView box = user_.awaitMessageBox();
      const std::wstring answer = box.buttons.starts_with(L"yes") ? L"yes" : L"ok";
      printLine(L"     is told " + inQuotes(box.text) + L" and answers " + answer);
      user_.answer(box, answer);
    }
  }

  void takePicture(HWND dialog, const std::wstring& file) { user_.pictureOf(dialog).save(pictures_ / file); }

  std::filesystem::path pictures_;
  std::wstring picturesAsSeen_;  // from where the user called, before the installation becomes the current directory
  Installation installation_;
  UiThread thread_;
  User user_;
  std::unique_ptr<HostWindow> main_;
  std::unique_ptr<HostWindow> embedding_;
  std::unique_ptr<Biller> biller_;
};

}  // namespace

int runDemo(const Folders& folders) {
  Demo demo(folders);
  try {
    demo.run();
    return 0;
  } catch (const Failure& failure) {
    printLine(L"\nThe demo failed: " + failure.text());
  } catch (const HostError& error) {
    printLine(L"\nThe demo failed: " + error.shown());
  }
  demo.takeScreen();
  TerminateProcess(GetCurrentProcess(), 1);  // the host's thread may never come back from its dialog
  return 1;
}

}  // namespace nv::host
