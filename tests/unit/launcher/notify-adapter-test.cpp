#include "launcher/notify-adapter.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QThread>
#include <algorithm>
#include <memory>
#include <vector>

namespace {

TEST(NotifyAdapter, IsTheSameObjectOnEveryThread) {
  Notify_Adapter* const first = Notify_Adapter::GetInstance();
  Notify_Adapter* second = nullptr;
  std::unique_ptr<QThread> const thread(
      QThread::create([&] { second = Notify_Adapter::GetInstance(); }));
  thread->start();
  thread->wait();
  EXPECT_EQ(first, second);
  EXPECT_EQ(first->thread(), QThread::currentThread());
  EXPECT_EQ(first->parent(), nullptr);
}

TEST(NotifyAdapter, DoesNothingWithoutAConnection) {
  Notify_Adapter::GetInstance()->UpdateProgress(3, 1);
  Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("nobody reads this"));
  // Nothing is kept for later connections.
  QSignalSpy const progress(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)));
  QSignalSpy const text(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)));
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(progress.isEmpty());
  EXPECT_TRUE(text.isEmpty());
}

TEST(NotifyAdapter, PassesItsArgumentsInOrder) {
  QSignalSpy progress(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)));
  QSignalSpy text(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)));
  Notify_Adapter::GetInstance()->UpdateProgress(7, 2);
  Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("label"));
  ASSERT_EQ(progress.size(), 1);
  EXPECT_EQ(progress[0], (QList<QVariant>{7, 2}));
  ASSERT_EQ(text.size(), 1);
  EXPECT_EQ(text[0], (QList<QVariant>{QStringLiteral("label")}));
}

TEST(NotifyAdapter, DeliversInTheOrderOfEmissionAcrossThreads) {
  QObject receiver;
  std::vector<int> seen;
  QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, &receiver,
                   [&](int, int current) { seen.push_back(current); });
  std::unique_ptr<QThread> const thread(QThread::create([] {
    for (int i = 1; i <= 1000; ++i) Notify_Adapter::GetInstance()->UpdateProgress(1000, i);
  }));
  thread->start();
  thread->wait();
  EXPECT_TRUE(seen.empty());  // queued: nothing is delivered while this thread is busy
  QCoreApplication::sendPostedEvents(&receiver);
  ASSERT_EQ(seen.size(), 1000U);
  EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
}

}  // namespace
