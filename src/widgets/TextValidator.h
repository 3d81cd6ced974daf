// Keeps a text within a number of characters, whatever their length in code units.
#pragma once

#include <QString>
#include <QValidator>

namespace mortane {

int CharacterCount(const QString& text);
QString FirstCharacters(const QString& text, int count);

// What is typed or pasted beyond the limit is dropped; what stood there before stays.
class TextValidator : public QValidator {
  Q_OBJECT

 public:
  TextValidator(int limit, QObject* parent);

  [[nodiscard]] int limit() const { return limit_; }
  State validate(QString& input, int& position) const override;

 private:
  int limit_;
};

}  // namespace mortane
