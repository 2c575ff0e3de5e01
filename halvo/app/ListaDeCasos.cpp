#include "halvo/app/ListaDeCasos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace halvo {

namespace {

QJsonObject pParaJson(const EntradaCaso& entrada) {
    return {{QStringLiteral("estudo"), entrada.Estudo},
            {QStringLiteral("nome"), entrada.Nome},
            {QStringLiteral("pasta"), entrada.Pasta},
            {QStringLiteral("descricao"), entrada.Descricao},
            {QStringLiteral("codigo"), entrada.Codigo},
            {QStringLiteral("criacao"), entrada.Criacao.toString(Qt::ISODate)},
            {QStringLiteral("somenteLeitura"), entrada.SomenteLeitura}};
}

EntradaCaso pDeJson(const QJsonObject& objeto) {
    EntradaCaso entrada;
    entrada.Estudo = objeto.value(QStringLiteral("estudo")).toString();
    entrada.Nome = objeto.value(QStringLiteral("nome")).toString();
    entrada.Pasta = objeto.value(QStringLiteral("pasta")).toString();
    entrada.Descricao = objeto.value(QStringLiteral("descricao")).toString();
    entrada.Codigo = objeto.value(QStringLiteral("codigo")).toInt();
    entrada.Criacao = QDateTime::fromString(objeto.value(QStringLiteral("criacao")).toString(), Qt::ISODate);
    entrada.SomenteLeitura = objeto.value(QStringLiteral("somenteLeitura")).toBool();
    return entrada;
}

}  // namespace

QString ListaDeCasos::ArquivoPadrao() {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/casos.json");
}

ListaDeCasos::ListaDeCasos(QString arquivo) : mArquivo(std::move(arquivo)) {}

bool ListaDeCasos::Carrega() {
    mCasos.clear();
    mProximoCodigo = 1;
    QFile arquivo(mArquivo);
    if (!arquivo.exists()) {
        return true;
    }
    if (!arquivo.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QJsonDocument documento = QJsonDocument::fromJson(arquivo.readAll());
    const QJsonValue casos = documento.object().value(QStringLiteral("casos"));
    if (!documento.isObject() || !casos.isArray()) {
        return false;
    }
    for (const QJsonValue& caso : casos.toArray()) {
        EntradaCaso entrada = pDeJson(caso.toObject());
        if (entrada.Codigo <= 0 || entrada.Pasta.isEmpty()) {
            mCasos.clear();
            return false;
        }
        mProximoCodigo = std::max(mProximoCodigo, entrada.Codigo + 1);
        mCasos.push_back(std::move(entrada));
    }
    mProximoCodigo =
        std::max(mProximoCodigo, documento.object().value(QStringLiteral("proximoCodigo")).toInt());
    return true;
}

bool ListaDeCasos::Grava() const {
    if (!QDir().mkpath(QFileInfo(mArquivo).absolutePath())) {
        return false;
    }
    QJsonArray casos;
    for (const EntradaCaso& entrada : mCasos) {
        casos.append(pParaJson(entrada));
    }
    const QJsonObject raiz{{QStringLiteral("proximoCodigo"), mProximoCodigo},
                           {QStringLiteral("casos"), casos}};
    // A crash while writing leaves the former list, never half of one.
    QSaveFile arquivo(mArquivo);
    return arquivo.open(QIODevice::WriteOnly) && arquivo.write(QJsonDocument(raiz).toJson()) >= 0 &&
           arquivo.commit();
}

const EntradaCaso* ListaDeCasos::Procura(std::int32_t codigo) const {
    const auto caso =
        std::find_if(mCasos.begin(), mCasos.end(), [codigo](const auto& e) { return e.Codigo == codigo; });
    return caso == mCasos.end() ? nullptr : &*caso;
}

const EntradaCaso* ListaDeCasos::ProcuraPasta(const QString& pasta) const {
    const QString procurada = EntradaCaso::PastaNormal(pasta);
    const auto caso =
        std::find_if(mCasos.begin(), mCasos.end(), [&](const auto& e) { return e.Pasta == procurada; });
    return caso == mCasos.end() ? nullptr : &*caso;
}

std::int32_t ListaDeCasos::Adiciona(EntradaCaso entrada) {
    entrada.Codigo = mProximoCodigo++;
    entrada.Pasta = EntradaCaso::PastaNormal(entrada.Pasta);
    mCasos.push_back(std::move(entrada));
    return mCasos.back().Codigo;
}

void ListaDeCasos::Remove(std::int32_t codigo) {
    std::erase_if(mCasos, [codigo](const auto& e) { return e.Codigo == codigo; });
}

void ListaDeCasos::setSomenteLeitura(std::int32_t codigo, bool somenteLeitura) {
    for (EntradaCaso& entrada : mCasos) {
        if (entrada.Codigo == codigo) {
            entrada.SomenteLeitura = somenteLeitura;
        }
    }
}

}  // namespace halvo
