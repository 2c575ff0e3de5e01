#include "halvo/app/DialogoNovoCaso.h"

#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace halvo {

DialogoNovoCaso::DialogoNovoCaso(const QStringList& estudos, QString pastaBase, QWidget* pai)
    : QDialog(pai),
      mPastaBase(std::move(pastaBase)),
      mEstudo(new QComboBox(this)),
      mNome(new QLineEdit(this)),
      mDescricao(new QLineEdit(this)),
      mPasta(new QLineEdit(this)) {
    setWindowTitle(QStringLiteral("Novo caso"));
    mEstudo->setObjectName(QStringLiteral("CboEstudo"));
    mNome->setObjectName(QStringLiteral("TxtNome"));
    mDescricao->setObjectName(QStringLiteral("TxtDescricao"));
    mPasta->setObjectName(QStringLiteral("TxtPasta"));
    mEstudo->setEditable(true);
    mEstudo->addItems(estudos);
    mEstudo->setCurrentText(QString());

    auto* escolhe = new QToolButton(this);
    escolhe->setText(QStringLiteral("..."));
    escolhe->setToolTip(QStringLiteral("Escolher a pasta"));
    auto* linhaPasta = new QHBoxLayout;
    linhaPasta->addWidget(mPasta);
    linhaPasta->addWidget(escolhe);

    auto* campos = new QFormLayout;
    campos->addRow(QStringLiteral("&Estudo:"), mEstudo);
    campos->addRow(QStringLiteral("&Nome do caso:"), mNome);
    campos->addRow(QStringLiteral("&Descrição:"), mDescricao);
    campos->addRow(QStringLiteral("&Pasta:"), linhaPasta);

    auto* botoes = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    botoes->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Cancelar"));
    mOk = botoes->button(QDialogButtonBox::Ok);
    auto* leiaute = new QVBoxLayout(this);
    leiaute->addLayout(campos);
    leiaute->addWidget(botoes);
    setMinimumWidth(480);

    connect(botoes, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(botoes, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(escolhe, &QToolButton::clicked, this, &DialogoNovoCaso::pEscolhePasta);
    connect(mEstudo, &QComboBox::currentTextChanged, this, &DialogoNovoCaso::pSugerePasta);
    connect(mNome, &QLineEdit::textChanged, this, &DialogoNovoCaso::pSugerePasta);
    connect(mPasta, &QLineEdit::textEdited, this, [this] { mPastaEscolhida = true; });
    connect(mPasta, &QLineEdit::textChanged, this, &DialogoNovoCaso::pConfere);
    pConfere();
}

EntradaCaso DialogoNovoCaso::Entrada() const {
    EntradaCaso entrada;
    entrada.Estudo = mEstudo->currentText().trimmed();
    entrada.Nome = mNome->text().trimmed();
    entrada.Descricao = mDescricao->text().trimmed();
    entrada.Pasta = EntradaCaso::PastaNormal(mPasta->text().trimmed());
    return entrada;
}

void DialogoNovoCaso::pSugerePasta() {
    const QString estudo = mEstudo->currentText().trimmed();
    const QString nome = mNome->text().trimmed();
    if (!mPastaEscolhida) {
        mPasta->setText(
            estudo.isEmpty() || nome.isEmpty()
                ? QString()
                : QDir::toNativeSeparators(QDir(mPastaBase).filePath(estudo + QLatin1Char('/') + nome)));
    }
    pConfere();
}

void DialogoNovoCaso::pEscolhePasta() {
    const QString pasta =
        Servicos::dialogo().SelecionaPasta(mPasta->text(), QStringLiteral("Pasta do novo caso"));
    if (!pasta.isEmpty()) {
        mPastaEscolhida = true;
        mPasta->setText(pasta);
    }
}

void DialogoNovoCaso::pConfere() {
    mOk->setEnabled(!mEstudo->currentText().trimmed().isEmpty() && !mNome->text().trimmed().isEmpty() &&
                    !mPasta->text().trimmed().isEmpty());
}

}  // namespace halvo
