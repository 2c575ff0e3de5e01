#include "halvo/app/ServicoDialogoGui.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QRegularExpression>

namespace halvo {

namespace {

// The arrow over a dialog, whatever pointer the work behind it has set.
class SetaSobreDialogo {
public:
    SetaSobreDialogo() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~SetaSobreDialogo() { QApplication::restoreOverrideCursor(); }
    SetaSobreDialogo(const SetaSobreDialogo&) = delete;
    SetaSobreDialogo& operator=(const SetaSobreDialogo&) = delete;
};

QMessageBox::Icon pIcone(Icone icone) {
    switch (icone) {
        case Icone::Erro:
            return QMessageBox::Critical;
        case Icone::Pergunta:
            return QMessageBox::Question;
        case Icone::Exclamacao:
            return QMessageBox::Warning;
        case Icone::Informacao:
            return QMessageBox::Information;
        case Icone::Nenhum:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons pBotoes(Botoes botoes) {
    switch (botoes) {
        case Botoes::OkCancelar:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Botoes::SimNao:
            return QMessageBox::Yes | QMessageBox::No;
        case Botoes::SimNaoCancelar:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Botoes::Ok:
            break;
    }
    return QMessageBox::Ok;
}

Resposta pResposta(QMessageBox::StandardButton botao) {
    switch (botao) {
        case QMessageBox::Cancel:
            return Resposta::Cancelar;
        case QMessageBox::Yes:
            return Resposta::Sim;
        case QMessageBox::No:
            return Resposta::Nao;
        default:
            return Resposta::Ok;
    }
}

}  // namespace

QString TextoDaMensagem(const QString& texto) {
    QString linhas = texto;
    return linhas.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

QString FiltroDoQt(const QString& filtro) {
    static const QRegularExpression padroesNoFim(QStringLiteral("\\s*\\([^()]*\\)\\s*$"));
    const QStringList partes = filtro.split(QLatin1Char('|'));
    QStringList filtros;
    for (qsizetype i = 0; i < partes.size(); i += 2) {
        QString descricao = partes[i].trimmed();
        QStringList padroes =
            i + 1 < partes.size() ? partes[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts) : QStringList();
        for (QString& padrao : padroes) {
            padrao = padrao.trimmed();
        }
        if (descricao.isEmpty() && padroes.isEmpty()) {
            continue;
        }
        if (padroes.isEmpty()) {
            padroes << QStringLiteral("*");
        }
        descricao.remove(padroesNoFim);
        filtros << QStringLiteral("%1 (%2)").arg(descricao, padroes.join(QLatin1Char(' ')));
    }
    return filtros.join(QStringLiteral(";;"));
}

Resposta ServicoDialogoGui::Mensagem(const QString& texto, const QString& titulo, Icone icone,
                                     Botoes botoes) {
    const SetaSobreDialogo seta;
    QMessageBox caixa(pIcone(icone), titulo.isEmpty() ? QStringLiteral("Halvo") : titulo,
                      TextoDaMensagem(texto), pBotoes(botoes), QApplication::activeWindow());
    caixa.exec();
    return pResposta(caixa.standardButton(caixa.clickedButton()));
}

QString ServicoDialogoGui::SelecionaArquivo(const QString& filtro, const QString& titulo,
                                            const QString& inicial) {
    const SetaSobreDialogo seta;
    return QDir::toNativeSeparators(
        QFileDialog::getOpenFileName(QApplication::activeWindow(), titulo, inicial, FiltroDoQt(filtro)));
}

QStringList ServicoDialogoGui::SelecionaArquivos() {
    const SetaSobreDialogo seta;
    QStringList arquivos = QFileDialog::getOpenFileNames(QApplication::activeWindow());
    for (QString& arquivo : arquivos) {
        arquivo = QDir::toNativeSeparators(arquivo);
    }
    return arquivos;
}

QString ServicoDialogoGui::SelecionaPasta(const QString& inicial, const QString& titulo) {
    const SetaSobreDialogo seta;
    return QDir::toNativeSeparators(
        QFileDialog::getExistingDirectory(QApplication::activeWindow(), titulo, inicial));
}

// The old pointer was one value, not a stack: each call replaces what the last one set.
void ServicoDialogoGui::MousePointer(Ponteiro p) {
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
    if (p == Ponteiro::Ocupado) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (p == Ponteiro::Seta) {
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
}

}  // namespace halvo
