#include "launcher/launcher.h"

#include <gmock/gmock.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <stdlib.h>
#include <sys/stat.h>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFont>
#include <QMetaMethod>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <thread>

#include "launcher/notify-adapter.h"
#include "launcher/progress-dialog.h"
#include "localisation/str-table.h"
#include "service/larkmoor-service.h"
#include "support/archive-builder.h"
#include "support/files.h"
#include "support/log-capture.h"

namespace fs = std::filesystem;

namespace {

using test::Entry;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

class Home : public test::TempDir {
 public:
  Home() { setenv("HOME", path().c_str(), 1); }
};

/// Records the states of the dialog.
class Watch : public QObject {
 public:
  explicit Watch(QProgressDialog* dialog) : dialog_(dialog) {
    dialog->installEventFilter(this);
    bar_ = dialog->findChild<QProgressBar*>();
    QObject::connect(bar_, &QProgressBar::valueChanged, this,
                     [this](int value) { events.push_back(std::to_string(value)); });
  }
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == dialog_ && event->type() == QEvent::Show) events.emplace_back("show");
    if (object == dialog_ && event->type() == QEvent::Hide) events.emplace_back("hide");
    return false;
  }
  std::vector<std::string> events;

 private:
  QProgressDialog* dialog_;
  QProgressBar* bar_ = nullptr;
};

class LauncherTest : public testing::Test {
 protected:
  LauncherTest() {
    StrTable::InitStrTable();
    fs::remove_all(Resources());
  }
  ~LauncherTest() override { fs::remove_all(Resources()); }

  static std::string Resources() { return Service::GetRootLarkmoorResourceInstallPath().c_str(); }
  std::string App() const { return home / ".Larkmoor/Larkmoor.app"; }
  static Entry Client() {
    return Entry::File("Contents/MacOS/larkmoor-drive-ui", "#!/bin/sh\ntouch \"$HOME/started\"\n",
                       0755);
  }
  static void Carry(std::vector<Entry> const& entries) {
    test::WriteFile(Resources() + "/package/larkmoor.lpk", test::MakeArchive(entries));
  }
  void Install() {
    test::WriteFile(App() + "/Contents/MacOS/larkmoor-drive-ui", Client().content);
    chmod((App() + "/Contents/MacOS/larkmoor-drive-ui").c_str(), 0755);
  }
  /// The launcher's dialog.
  static ProcessingProgressDialog* Dialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<ProcessingProgressDialog*>(widget)) return dialog;
    }
    throw std::runtime_error("there is no dialog");
  }
  static void UpdateProgress(Launcher* launcher, int total, int steps) {
    QMetaObject::invokeMethod(launcher, "UpdateProgress", Q_ARG(int, total), Q_ARG(int, steps));
  }
  /// A package that takes long enough to unpack for a test to act meanwhile.
  static void CarryTwoHundredFiles() {
    std::vector<Entry> entries;
    for (int i = 0; i < 200; ++i) {
      entries.push_back(Entry::File("Contents/" + std::to_string(i), std::string(1000, 'x')));
    }
    entries.push_back(Client());
    Carry(entries);
  }
  /// Runs like main. Returns false if the sequence doesn't end in time.
  static bool RunToTheEnd(Launcher* launcher) {
    QTimer guard;
    bool ended = true;
    QObject::connect(&guard, &QTimer::timeout, [&] {
      ended = false;
      QCoreApplication::exit(1);
    });
    guard.start(60000);
    launcher->Run();
    launcher->Start();
    return QApplication::exec() == 0 && ended;
  }

  Home home;
  test::LogCapture log;
};

/// Finds the worker of a launcher that is made later: moving it to its thread sends it an event.
class WorkerFinder : public QObject {
 public:
  WorkerFinder() { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::ThreadChange) worker = qobject_cast<Worker*>(object);
    return false;
  }
  QPointer<Worker> worker;
};

/// The class's own signals and slots, in order.
std::vector<std::string> Members(QMetaObject const& meta) {
  std::vector<std::string> members;
  for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
    QMetaMethod const method = meta.method(i);
    members.push_back((method.methodType() == QMetaMethod::Signal ? "signal " : "slot ") +
                      method.methodSignature().toStdString());
    bool const is_public = method.access() == QMetaMethod::Public;
    EXPECT_EQ(is_public, method.methodType() == QMetaMethod::Signal) << members.back();
  }
  return members;
}

TEST(MetaObjects, DeclarePublicSignalsAndPrivateSlotsInOrder) {
  EXPECT_THAT(Members(Launcher::staticMetaObject),
              ElementsAre("signal sigStart()", "slot LaunchDone()", "slot UpdateProgress(int,int)",
                          "slot SetLabelText(QString)", "slot ShowMsgBox()"));
  EXPECT_THAT(Members(Worker::staticMetaObject),
              ElementsAre("signal sigServiceDone()", "signal sigShowMsg()",
                          "signal sigUpdateProgress(int,int)", "signal sigSetLabelText(QString)",
                          "slot HandleServicce()"));
  EXPECT_THAT(Members(HandlerThread::staticMetaObject), testing::IsEmpty());
  EXPECT_THAT(Members(ProcessingProgressDialog::staticMetaObject), testing::IsEmpty());
  EXPECT_THAT(
      Members(Notify_Adapter::staticMetaObject),
      ElementsAre("signal sigUpdateProgress(int,int)", "signal sigUpdateDialogText(QString)"));
}

TEST_F(LauncherTest, RunsTheUpgradeOnTheHandlerThreadAndItsOwnSlotsOnTheMainThread) {
  Carry({Client()});
  Launcher launcher;
  QThread* emitting = nullptr;
  QObject context;
  QObject::connect(
      Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &context,
      [&](int, int) { emitting = QThread::currentThread(); }, Qt::DirectConnection);
  QThread* painting = nullptr;
  QObject::connect(
      Dialog()->findChild<QProgressBar*>(), &QProgressBar::valueChanged, &context,
      [&](int) { painting = QThread::currentThread(); }, Qt::DirectConnection);
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_NE(qobject_cast<HandlerThread*>(emitting), nullptr);
  EXPECT_EQ(painting, QCoreApplication::instance()->thread());
}

TEST_F(LauncherTest, RemovesCancelButtonAndResetFromItsDialog) {
  Launcher launcher;
  EXPECT_FALSE(Dialog()->autoReset());
  EXPECT_EQ(Dialog()->findChild<QPushButton*>(), nullptr);
  EXPECT_FALSE(Dialog()->isVisible());
}

TEST_F(LauncherTest, SetsTheFontFamilyOfTheApplicationButNotItsSize) {
  QFont const former = QApplication::font();
  QFont other(QStringLiteral("Another"));
  other.setPointSize(17);
  QApplication::setFont(other);
  {
    Launcher launcher;
    EXPECT_EQ(QApplication::font().family(), Dialog()->font().family());
    EXPECT_EQ(QApplication::font().pointSize(), 17);
    EXPECT_EQ(Dialog()->font().pointSize(), 17);
  }
  QApplication::setFont(former);
}

TEST_F(LauncherTest, TruncatesThePercentage) {
  Launcher launcher;
  UpdateProgress(&launcher, 100, 100);
  EXPECT_EQ(Dialog()->value(), 100);
  UpdateProgress(&launcher, 7, 1);
  EXPECT_EQ(Dialog()->value(), 14);
  UpdateProgress(&launcher, 3, 2);
  EXPECT_EQ(Dialog()->value(), 66);
}

TEST_F(LauncherTest, SetsTheLabelAndShowsTheDialogOnRequest) {
  Launcher launcher;
  QMetaObject::invokeMethod(&launcher, "SetLabelText",
                            Q_ARG(QString, QStringLiteral("another label")));
  EXPECT_EQ(Dialog()->labelText(), "another label");
  QMetaObject::invokeMethod(&launcher, "ShowMsgBox");
  EXPECT_TRUE(Dialog()->isVisible());
}

TEST_F(LauncherTest, HandlesSignalsOfTheAdapterLikeThoseOfItsWorker) {
  WorkerFinder finder;
  Launcher launcher;
  ASSERT_NE(finder.worker, nullptr);
  emit finder.worker->sigUpdateProgress(4, 3);
  emit finder.worker->sigSetLabelText(QStringLiteral("from the worker"));
  EXPECT_EQ(Dialog()->value(), 75);
  EXPECT_EQ(Dialog()->labelText(), "from the worker");
  Notify_Adapter::GetInstance()->UpdateProgress(4, 1);
  Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("from below"));
  EXPECT_EQ(Dialog()->value(), 25);
  EXPECT_EQ(Dialog()->labelText(), "from below");
}

TEST_F(LauncherTest, BatchesNotificationsWhileTheWindowIsVisible) {
  constexpr int kNotifications = 5000;
  constexpr int kRestMs = 2;
  Launcher launcher;
  QMetaObject::invokeMethod(&launcher, "ShowMsgBox");
  QEventLoop loop;
  int rests = 0;
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                   &loop, [&rests] { ++rests; });
  QObject::connect(Dialog()->findChild<QProgressBar*>(), &QProgressBar::valueChanged, &loop,
                   [&loop](int value) {
                     if (value == 100) loop.quit();
                   });
  QElapsedTimer clock;
  clock.start();
  std::thread sender([] {
    for (int i = 1; i <= kNotifications; ++i) {
      Notify_Adapter::GetInstance()->UpdateProgress(kNotifications, i);
      std::this_thread::sleep_for(std::chrono::microseconds(1));
    }
  });
  loop.exec();
  sender.join();
  EXPECT_EQ(Dialog()->value(), 100);
  EXPECT_LE(rests, clock.elapsed() / kRestMs + 1);
}

TEST_F(LauncherTest, ShowsThreeEntriesAsThirdsAndStaysAt100UntilHidden) {
  Carry({Entry::Folder("Contents"), Entry::Folder("Contents/MacOS"), Client()});
  WorkerFinder finder;
  Launcher launcher;
  ASSERT_NE(finder.worker, nullptr);
  QSignalSpy progress(finder.worker, SIGNAL(sigUpdateProgress(int, int)));
  Watch watch(Dialog());
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_THAT(watch.events, ElementsAre("show", "33", "66", "100", "hide"));
  EXPECT_EQ(Dialog()->labelText(), "Larkmoor Drive is ready.");
  EXPECT_THAT(progress, ElementsAre(QVariantList{100, 100}));
}

constexpr int kFrameMs = 17;

/// Measures how long the ready text is on the screen. Sees events before the dialog's own filters.
class ReadyClock : public QObject {
 public:
  explicit ReadyClock(QProgressDialog* dialog) : dialog_(dialog) { qApp->installEventFilter(this); }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (object != dialog_) return false;
    if (event->type() == QEvent::Paint && !since_paint_.isValid() &&
        dialog_->labelText() == "Larkmoor Drive is ready.") {
      since_paint_.start();
    }
    if (event->type() == QEvent::Hide && since_paint_.isValid()) shown_ms = since_paint_.elapsed();
    return false;
  }
  qint64 shown_ms = -1;  ///< -1 if it was never painted

 private:
  QProgressDialog* dialog_;
  QElapsedTimer since_paint_;
};

TEST_F(LauncherTest, LeavesItsLastStateOnTheScreenForAFrame) {
  Carry({Client()});
  Launcher launcher;
  ReadyClock clock(Dialog());
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_GE(clock.shown_ms, kFrameMs);
}

/// A window that appears late: paint events with the ready text come again later, while the
/// launcher waits for them.
class LateWindow : public QObject {
 public:
  explicit LateWindow(QProgressDialog* dialog) : dialog_(dialog) {
    qApp->installEventFilter(this);
    again_.setSingleShot(true);
    QObject::connect(&again_, SIGNAL(timeout()), dialog, SLOT(update()));
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    constexpr int kDelayMs = 2 * kFrameMs;
    if (object != dialog_ || event->type() != QEvent::Paint) return false;
    if (dialog_->labelText() != "Larkmoor Drive is ready.") return false;
    if (QThread::currentThread()->loopLevel() > 1) return false;
    QCoreApplication::postEvent(dialog_, new QEvent(QEvent::User));
    again_.start(kDelayMs);
    return true;
  }

 private:
  QProgressDialog* dialog_;
  QTimer again_;
};

TEST_F(LauncherTest, WaitsForAWindowThatAppearsLate) {
  Carry({Client()});
  Launcher launcher;
  ReadyClock clock(Dialog());
  LateWindow late(Dialog());
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_GE(clock.shown_ms, kFrameMs);
}

TEST_F(LauncherTest, NeverShowsTheDialogWhenThereIsNothingToDo) {
  Install();
  Launcher launcher;
  Watch watch(Dialog());
  auto* const worker = launcher.findChild<Worker*>();
  EXPECT_EQ(worker, nullptr);  // not a child object: that could not be on another thread
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_THAT(watch.events, ElementsAre("100"));
  EXPECT_EQ(Dialog()->labelText(), "Larkmoor Drive is initializing...");
  EXPECT_THAT(log.OwnLines(), Contains("[DEBUG] launcher(0): no need to upgrade"));
}

TEST_F(LauncherTest, WaitsForNoWindowWhenThereIsNothingToDo) {
  Install();
  Launcher launcher;
  int nested_loops = 0;
  auto const counting = QObject::connect(
      QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
      [&nested_loops] { nested_loops += QThread::currentThread()->loopLevel() > 1 ? 1 : 0; });
  EXPECT_TRUE(RunToTheEnd(&launcher));
  QObject::disconnect(counting);
  EXPECT_EQ(nested_loops, 0);
}

TEST_F(LauncherTest, KeepsBarAndLabelAfterAFailureAndFinishes) {
  Carry({Client(), Entry::File("../climbs", "1")});
  Launcher launcher;
  Watch watch(Dialog());
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_THAT(watch.events, ElementsAre("show", "50", "100", "hide"));
  EXPECT_EQ(Dialog()->labelText(), "Larkmoor Drive is initializing...");
  std::vector<std::string> const lines = log.OwnLines();
  auto const failed =
      std::find(lines.begin(), lines.end(), "[ERROR] launcher(0): Failed to upgrade package");
  ASSERT_NE(failed, lines.end());
  EXPECT_THAT(std::vector<std::string>(failed + 1, lines.end()),
              ElementsAre(HasSubstr("removing aged app folder"), "[DEBUG] launcher(0): done"));
}

TEST_F(LauncherTest, EndsProperlyWhenTheWorkerFinishesBeforeTheLoopStarts) {
  Install();
  Launcher launcher;
  launcher.Run();
  launcher.Start();
  auto const done = [this] {
    auto const lines = log.OwnLines();
    return std::find(lines.begin(), lines.end(), "[DEBUG] launcher(0): done") != lines.end();
  };
  while (!done()) QThread::yieldCurrentThread();
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(LauncherTest, JoinsItsThreadBeforeItEndsTheLoop) {
  Install();
  WorkerFinder finder;
  Launcher launcher;
  ASSERT_NE(finder.worker, nullptr);
  std::atomic<bool> ended = false;
  bool joined = false;
  QObject::connect(finder.worker->QObject::thread(), &QThread::finished, [&ended] {
    QThread::msleep(100);
    ended = true;
  });
  QObject context;
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, &context, [&] { joined = ended; });
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_TRUE(joined);
}

TEST_F(LauncherTest, DestroysItsWorkerAndTheThread) {
  WorkerFinder finder;
  QPointer<QThread> thread;
  {
    Launcher launcher;
    ASSERT_NE(finder.worker, nullptr);
    thread = finder.worker->QObject::thread();
    ASSERT_NE(qobject_cast<HandlerThread*>(thread), nullptr);
  }
  EXPECT_EQ(finder.worker, nullptr);
  EXPECT_EQ(thread, nullptr);
}

#ifdef __GLIBC__
TEST(WorkerTest, LeavesNoMemoryBehind) {
  constexpr int kWorkers = 100;
  constexpr std::size_t kLeast = 50;  // bytes that one leak takes at least
  { Worker const first; }
  std::size_t const before = mallinfo2().uordblks;
  for (int i = 0; i < kWorkers; ++i) Worker const worker;
  EXPECT_LT(mallinfo2().uordblks, before + kWorkers * kLeast);
}
#endif

TEST_F(LauncherTest, StartsTheSequenceOnce) {
  Install();
  Launcher launcher;
  QSignalSpy starts(&launcher, SIGNAL(sigStart()));
  EXPECT_TRUE(RunToTheEnd(&launcher));
  EXPECT_EQ(starts.size(), 1);
  auto const lines = log.OwnLines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "[DEBUG] launcher(0): running"), 1);
}

/// A user who acts on the dialog as soon as the first entry is unpacked.
class ImpatientUser : public LauncherTest {
 protected:
  void RunWith(std::function<void(QWidget*)> const& act) {
    CarryTwoHundredFiles();
    Launcher launcher;
    bool acted = false;
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &launcher,
                     [&](int, int) {
                       if (acted) return;
                       acted = true;
                       act(Dialog());
                     });
    EXPECT_TRUE(RunToTheEnd(&launcher));
    EXPECT_TRUE(acted);
    EXPECT_EQ(test::ReadTree(App() + "/Contents").size(), 202U);
    EXPECT_EQ(log.OwnLines().back(), "[DEBUG] launcher(0): done");
    EXPECT_THAT(log.OwnLines(), Contains(HasSubstr("user installation is ready")));
  }
};

TEST_F(ImpatientUser, ChangesNothingWithTheEscapeKey) {
  RunWith([](QWidget* dialog) {
    ASSERT_TRUE(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible());
  });
}

TEST_F(ImpatientUser, ChangesNothingByClosingTheDialog) {
  RunWith([](QWidget* dialog) {
    ASSERT_TRUE(dialog->isVisible());
    EXPECT_TRUE(dialog->close());
  });
}

TEST_F(ImpatientUser, ChangesNothingWithReturnSpaceOrAltF4) {
  RunWith([](QWidget* dialog) {
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
      QTest::keyClick(dialog, key);
    }
    QTest::keyClick(dialog, Qt::Key_F4, Qt::AltModifier);
  });
}

TEST_F(LauncherTest, FinishesTheInstallationWhenTheSystemEndsTheLoop) {
  CarryTwoHundredFiles();
  {
    Launcher launcher;
    // Like the end of a session, or Quit in the application menu.
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &launcher,
                     [](int, int) { QCoreApplication::quit(); });
    EXPECT_TRUE(RunToTheEnd(&launcher));
  }
  EXPECT_EQ(test::ReadTree(App() + "/Contents").size(), 202U);
  EXPECT_EQ(log.OwnLines().back(), "[DEBUG] launcher(0): done");
}

}  // namespace
