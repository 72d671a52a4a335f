#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLabel>
#include <QTranslator>

#include "launcher/progress-dialog.h"
#include "localisation/str-table.h"

namespace {

constexpr int kPreparing = 371;
constexpr int kReady = 519;

struct Language {
  char const* name;
  QFontDatabase::WritingSystem writing;
};

void PrintTo(Language const& language, std::ostream* out) { *out << language.name; }

// Every label the launcher shows, in Qt's layout and with this system's fonts.
class DialogLanguages : public testing::TestWithParam<Language> {
 protected:
  void SetUp() override {
    if (QFontDatabase().families(GetParam().writing).isEmpty()) {
      GTEST_SKIP() << "no font has the glyphs of " << GetParam().name;
    }
    ASSERT_TRUE(translator_.load(QStringLiteral(":/%1.qm").arg(QLatin1String(GetParam().name))));
    QCoreApplication::installTranslator(&translator_);
    StrTable::InitStrTable();
  }

  static void ExpectWhole(int row) {
    ProcessingProgressDialog dialog;
    dialog.setCancelButton(nullptr);
    QString const text = StrTable::LoadStr(row);
    dialog.setLabelText(text);
    dialog.show();
    auto const* label = dialog.findChild<QLabel*>();
    ASSERT_NE(label, nullptr);
    ASSERT_EQ(label->text(), text);
    EXPECT_TRUE(dialog.rect().contains(label->geometry()));
    QFontMetrics const metrics(label->font());
    EXPECT_GT(metrics.horizontalAdvance(text), 0);
    EXPECT_LE(metrics.horizontalAdvance(text), label->contentsRect().width());
    EXPECT_LE(metrics.height(), label->contentsRect().height());
  }

 private:
  QTranslator translator_;
};

TEST_P(DialogLanguages, ShowTheCompletePreparingText) { ExpectWhole(kPreparing); }

TEST_P(DialogLanguages, ShowTheCompleteReadyText) { ExpectWhole(kReady); }

INSTANTIATE_TEST_SUITE_P(
    All, DialogLanguages,
    testing::Values(Language{"enu", QFontDatabase::Latin},
                    Language{"cht", QFontDatabase::TraditionalChinese},
                    Language{"chs", QFontDatabase::SimplifiedChinese},
                    Language{"jpn", QFontDatabase::Japanese}, Language{"deu", QFontDatabase::Latin},
                    Language{"krn", QFontDatabase::Korean}, Language{"fra", QFontDatabase::Latin},
                    Language{"ita", QFontDatabase::Latin}, Language{"esn", QFontDatabase::Latin},
                    Language{"ptb", QFontDatabase::Latin}, Language{"rus", QFontDatabase::Cyrillic},
                    Language{"dan", QFontDatabase::Latin}, Language{"nor", QFontDatabase::Latin},
                    Language{"sve", QFontDatabase::Latin}, Language{"nld", QFontDatabase::Latin},
                    Language{"plk", QFontDatabase::Latin}, Language{"hun", QFontDatabase::Latin},
                    Language{"ptg", QFontDatabase::Latin}, Language{"trk", QFontDatabase::Latin},
                    Language{"csy", QFontDatabase::Latin}),
    [](testing::TestParamInfo<Language> const& each) { return std::string(each.param.name); });

}  // namespace
