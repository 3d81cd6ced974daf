// Pictures of the windows for the manual: manual_pictures FOLDER SUFFIX
// Each line of the standard input is a picture: its name, what it shows ("Objectives/Nosepiece",
// "Wizard/Ending") and the names of the controls that get a numbered circle, with tabs between
// them.
#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QRadioButton>
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <unordered_map>
#include <utility>
#include <vector>

#include "app/ApplyTheme.h"
#include "app/GetAppIcon.h"
#include "app/MainPages.h"
#include "app/MortaneMainForm.h"
#include "common/UnattendedPrompts.h"
#include "controller/simulator/Benches.h"
#include "controller/simulator/RealClock.h"
#include "controller/simulator/SimulatedLibrary.h"
#include "hub/clsK70.h"
#include "platform/Joystick.h"
#include "widgets/ContainerPage.h"
#include "widgets/SectionBar.h"
#include "widgets/Theme.h"
#include "wizard/SadrelMainForm.h"
#include "wizard/WizardSteps.h"

namespace {

using namespace mortane;

constexpr QSize kWindow{1152, 740};
constexpr double kRadius = 11;
constexpr double kRing = 2;
constexpr int kPatienceMs = 30000;
constexpr int kButtons = 10;
constexpr qsizetype kMostColours = 256;  // of a picture with a byte for each pixel
// Stands out from every colour of the program, in both palettes.
constexpr QRgb kCircle = qRgb(0xB3, 0x1B, 0x6A);

// A box would stand in no picture: what it says ends the program.
class NoPrompts : public UnattendedPrompts {
 public:
  Answer MsgBox(const std::string& text, int, const std::string&) override {
    throw std::runtime_error("a box: " + text);
  }
};

// Plugged in, so that the section of the joypad has its rows.
struct PluggedJoystick : Joystick {
  JoystickCapabilities ReadCapabilities() override { return {kJoystickOk, kButtons}; }
  std::int32_t ReadStatus() override { return kJoystickOk; }
};

QWidget& FindVisible(QWidget& within, const QString& name) {
  for (auto* control : within.findChildren<QWidget*>(name)) {
    if (control->isVisible()) return *control;
  }
  throw std::runtime_error("no control " + name.toStdString() + " to be seen");
}

void DrawCircle(QPainter& painter, QPointF center, int number) {
  painter.setPen(QPen(Qt::white, kRing));
  painter.setBrush(QColor(kCircle));
  painter.drawEllipse(center, kRadius, kRadius);
  QFont font = QApplication::font();
  font.setBold(true);
  painter.setFont(font);
  const QRectF box(center.x() - kRadius, center.y() - kRadius, 2 * kRadius, 2 * kRadius);
  painter.drawText(box, Qt::AlignCenter, QString::number(number));
}

// At the upper left corner of each control, as far as that is in the picture.
QPixmap PictureOf(QWidget& window, const QStringList& marks) {
  QPixmap picture = window.grab();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const double margin = kRadius + kRing;
  for (qsizetype i = 0; i < marks.size(); ++i) {
    const QWidget& control = FindVisible(window, marks[i]);
    const QPointF corner = control.mapTo(&window, QPoint(0, 0));
    DrawCircle(painter,
               {std::clamp(corner.x(), margin, window.width() - margin),
                std::clamp(corner.y(), margin, window.height() - margin)},
               static_cast<int>(i) + 1);
  }
  return picture;
}

std::vector<QRgb> ColoursByFrequency(const QImage& picture) {
  std::unordered_map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
    const auto* end = line + picture.width();
    while (line != end) {
      const auto* next = std::find_if(line, end, [line](QRgb colour) { return colour != *line; });
      counts[*line] += static_cast<int>(next - line);
      line = next;
    }
  }
  std::vector<QRgb> colours;
  colours.reserve(counts.size());
  for (const auto& [colour, count] : counts) colours.push_back(colour);
  std::sort(colours.begin(), colours.end(), [&counts](QRgb one, QRgb other) {
    return std::pair(-counts[one], one) < std::pair(-counts[other], other);
  });
  return colours;
}

bool IsWithin(int difference, QRgb one, QRgb other) {
  return std::abs(qRed(one) - qRed(other)) <= difference &&
         std::abs(qGreen(one) - qGreen(other)) <= difference &&
         std::abs(qBlue(one) - qBlue(other)) <= difference;
}

// The most frequent colours such that every colour is within `difference` of one of them. More than
// a table holds when there are too many.
QList<QRgb> ColoursApart(const std::vector<QRgb>& colours, int difference) {
  QList<QRgb> table;
  for (const QRgb colour : colours) {
    const bool isNear = std::any_of(table.begin(), table.end(), [&](QRgb chosen) {
      return IsWithin(difference, colour, chosen);
    });
    if (!isNear) table.push_back(colour);
    if (table.size() > kMostColours) break;
  }
  return table;
}

// The pictures have few colours; a table of them takes a third of the room.
QImage WithColourTable(const QImage& picture) {
  const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
  const std::vector<QRgb> colours = ColoursByFrequency(plain);
  QList<QRgb> table;
  int difference = 0;
  do {
    table = ColoursApart(colours, difference);
    difference = difference * 3 / 2 + 1;
  } while (table.size() > kMostColours);
  return plain.convertToFormat(QImage::Format_Indexed8, table);
}

void Settle() {
  QApplication::processEvents();
  QApplication::sendPostedEvents();
  QApplication::processEvents();
}

void OpenSection(Page* page, const QString& caption) {
  auto* container = dynamic_cast<ContainerPage*>(page);
  if (caption.isEmpty() || container == nullptr) return;
  const auto options = container->sections()->findChildren<SectionOption*>();
  for (int i = 0; i < options.size(); ++i) {
    if (options[i]->text() == caption && container->OpenSection(i)) return;
  }
  throw std::runtime_error("no section " + caption.toStdString());
}

// A window on the microscope of the pictures, started.
template <typename Form, typename Table>
struct Stage {
  Stage(const char* title, const Table& table) {
    QApplication::setApplicationName(QLatin1String(title));
    FormServices services{k70, library, prompts, joystick, {title, "Harbour"}};
    services.now = [] { return QTime(9, 12); };
    form = std::make_unique<Form>(services, table);
    form->resize(kWindow);
    form->Load();
    form->show();
    QElapsedTimer time;
    time.start();
    while (!form->IsStarted() && !time.hasExpired(kPatienceMs)) QApplication::processEvents();
    if (!form->isVisible()) throw std::runtime_error("the window does not start");
  }
  ~Stage() {
    form.reset();
    ReleaseK70();
  }

  NoPrompts prompts;
  PluggedJoystick joystick;
  controller::SimulatedLibrary library{controller::benches::Named("Harbour"),
                                       std::make_shared<controller::RealClock>()};
  clsK70& k70 = ProvideK70(library, prompts);
  std::unique_ptr<Form> form;
};

// The windows are made when the first picture asks for them; one of them at a time has the
// microscope.
class Studio {
 public:
  QWidget& Show(const QString& what) {
    const QString place = what.section(u'/', 0, 0);
    const QString rest = what.section(u'/', 1);
    QWidget& window = place == QLatin1String("Wizard") ? ShowStep(rest) : ShowPage(place, rest);
    Settle();
    return window;
  }

 private:
  QWidget& ShowPage(const QString& title, const QString& section) {
    wizard_.reset();
    if (!main_) main_.emplace(kMainTitle, MainPages());
    const PageTable pages = MainPages();
    const auto row = std::ranges::find(pages, title, &PageRow::title);
    if (row == pages.end()) throw std::runtime_error("no page " + title.toStdString());
    const auto index = static_cast<std::size_t>(row - pages.begin());
    main_->form->optMenu[index]->setChecked(true);
    for (auto* page : main_->form->FrameControl->template findChildren<ContainerPage*>()) {
      if (page->isVisible()) OpenSection(page, section);
    }
    return *main_->form;
  }

  QWidget& ShowStep(const QString& name) {
    main_.reset();
    if (!wizard_) {
      wizard_.emplace(kWizardTitle, WizardSteps());
      for (int item = 0; kFirstItem + item < kEndingStep; ++item) {
        wizard_->form->OnItemChanged(item, true);
      }
    }
    const StepTable steps = WizardSteps();
    const auto row = std::ranges::find(steps, name, &StepRow::name);
    if (row == steps.end()) throw std::runtime_error("no step " + name.toStdString());
    wizard_->form->optMenu[static_cast<std::size_t>(row - steps.begin())]->setChecked(true);
    return *wizard_->form;
  }

  std::optional<Stage<MortaneMainForm, PageTable>> main_;
  std::optional<Stage<SadrelMainForm, StepTable>> wizard_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 3) {
    std::cerr << "manual_pictures FOLDER SUFFIX <pictures\n";
    return 2;
  }
  ApplyTheme(application);
  std::string line;
  try {
    Studio studio;
    while (std::getline(std::cin, line)) {
      const QStringList words = QString::fromStdString(line).split(u'\t', Qt::SkipEmptyParts);
      if (words.size() < 2) throw std::runtime_error("no picture and what it shows");
      const QPixmap window = PictureOf(studio.Show(words[1]), words.mid(2));
      const QImage picture = WithColourTable(window.toImage());
      const QString file = arguments[1] + u'/' + words[0] + arguments[2] + QLatin1String(".png");
      if (!picture.save(file)) throw std::runtime_error("cannot write " + file.toStdString());
    }
  } catch (const std::exception& failure) {
    std::cerr << "manual_pictures: " << line << ": " << failure.what() << '\n';
    return 1;
  }
  return 0;
}
