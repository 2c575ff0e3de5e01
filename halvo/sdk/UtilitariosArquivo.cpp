#include "halvo/sdk/UtilitariosArquivo.h"

#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace halvo {

namespace {

bool ehSeparador(QChar c) {
    return c == QLatin1Char('/') || c == QDir::separator();
}

qsizetype ultimoSeparador(const QString& caminho) {
    for (qsizetype i = caminho.size() - 1; i >= 0; --i) {
        if (ehSeparador(caminho[i])) {
            return i;
        }
    }
    return -1;
}

// The characters of a short file name besides letters and digits.
bool caractereDeNomeCurto(QChar c) {
    static const QString outros = QStringLiteral("_-$~!#%&()@^'`{}");
    return c.isLetterOrNumber() || outros.contains(c);
}

bool parteValida(const QString& parte, qsizetype maximo) {
    if (parte.isEmpty() || parte.size() > maximo) {
        return false;
    }
    return std::all_of(parte.cbegin(), parte.cend(), caractereDeNomeCurto);
}

}  // namespace

QString UtilitariosArquivo::SelecionaArquivo(const QString& filtro, const QString& caminho,
                                             const QString& titulo) const {
    return Servicos::dialogo().SelecionaArquivo(filtro, titulo, caminho);
}

bool UtilitariosArquivo::ArquivoExiste(const QString& caminho) const {
    return !caminho.isEmpty() && QFileInfo(caminho).isFile();
}

bool UtilitariosArquivo::PastaExiste(const QString& caminho) const {
    return !caminho.isEmpty() && QFileInfo(caminho).isDir();
}

bool UtilitariosArquivo::CriaPasta(const QString& caminho) const {
    return !caminho.isEmpty() && QDir().mkpath(caminho);
}

bool UtilitariosArquivo::ApagaPasta(const QString& caminho, bool) const {
    return PastaExiste(caminho) && QDir(caminho).removeRecursively();
}

bool UtilitariosArquivo::PastaVazia(const QString& caminho) const {
    return PastaExiste(caminho) &&
           QDir(caminho).isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
}

bool UtilitariosArquivo::CopiaArquivo(const QString& origem, const QString& destino, bool sobrescreve) const {
    if (!ArquivoExiste(origem)) {
        return false;
    }
    if (QFileInfo::exists(destino)) {
        if (!sobrescreve || !QFile::remove(destino)) {
            return false;
        }
    }
    return QFile::copy(origem, destino);
}

void UtilitariosArquivo::ApagaArquivo(const QString& caminho) const { QFile::remove(caminho); }

QString UtilitariosArquivo::SeparaCaminho(const QString& caminho, bool comSeparador) const {
    const qsizetype i = ultimoSeparador(caminho);
    if (i < 0) {
        return {};
    }
    return caminho.left(comSeparador ? i + 1 : i);
}

QString UtilitariosArquivo::NomeDoArquivo(const QString& caminho) const {
    return caminho.mid(ultimoSeparador(caminho) + 1);
}

bool UtilitariosArquivo::NomeArquivoValido(const QString& nome) const {
    const qsizetype ponto = nome.indexOf(QLatin1Char('.'));
    return ponto >= 0 && NomeValido(nome.left(ponto)) && ExtensaoValida(nome.mid(ponto + 1));
}

bool UtilitariosArquivo::NomeValido(const QString& nome) const { return parteValida(nome, 8); }

bool UtilitariosArquivo::ExtensaoValida(const QString& extensao) const { return parteValida(extensao, 3); }

}  // namespace halvo
