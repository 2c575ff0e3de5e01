#include "halvo/app/GerenteDeCasos.h"

#include "halvo/sdk/IModelo.h"
#include "halvo/sdk/ServicoDialogo.h"
#include "halvo/sdk/Servicos.h"

#include <QFileInfo>

namespace halvo {

GerenteDeCasos::GerenteDeCasos(IModelo& modelo, ListaDeCasos& lista, std::shared_ptr<Notificador> notificador)
    : mModelo(modelo), mLista(lista), mNotificador(std::move(notificador)) {}

GerenteDeCasos::~GerenteDeCasos() {
    Fecha();
}

std::optional<std::int32_t> GerenteDeCasos::Cria(EntradaCaso entrada) {
    if (mModelo.CriarCaso(entrada.Pasta) != 1) {
        return std::nullopt;
    }
    entrada.Criacao = QDateTime::currentDateTime();
    const std::int32_t codigo = mLista.Adiciona(std::move(entrada));
    pGrava();
    return codigo;
}

bool GerenteDeCasos::Abre(std::int32_t codigo) {
    Fecha();
    const EntradaCaso* entrada = mLista.Procura(codigo);
    if (entrada == nullptr) {
        return false;
    }
    auto caso = std::make_shared<CasoPasta>(*entrada);
    if (mModelo.AbrirCaso(caso, mNotificador) != 1) {
        return false;
    }
    mCaso = std::move(caso);
    mAberto = codigo;
    return true;
}

bool GerenteDeCasos::AbrePasta(const QString& pasta) {
    if (const EntradaCaso* listado = mLista.ProcuraPasta(pasta)) {
        return Abre(listado->Codigo);
    }
    const std::int32_t codigo = mLista.Adiciona(EntradaCaso::DaPasta(pasta));
    if (!Abre(codigo)) {
        mLista.Remove(codigo);
        return false;
    }
    pGrava();
    return true;
}

void GerenteDeCasos::Fecha() {
    if (mAberto) {
        mModelo.FecharCaso();
        mAberto.reset();
        mCaso.reset();
    }
}

std::optional<std::int32_t> GerenteDeCasos::Copia(std::int32_t codigo, const QString& destino) {
    const EntradaCaso* entrada = mLista.Procura(codigo);
    if (entrada == nullptr) {
        return std::nullopt;
    }
    const EntradaCaso origem = *entrada;
    const std::optional<std::int32_t> anterior = mAberto;
    std::optional<std::int32_t> copia;
    if (Abre(codigo)) {
        QString de = origem.Pasta;
        QString para = destino;
        if (mModelo.CopiarCaso(de, para) == 1) {
            EntradaCaso nova = EntradaCaso::DaPasta(para);
            nova.Estudo = origem.Estudo;
            nova.Descricao = origem.Descricao;
            copia = mLista.Adiciona(std::move(nova));
            pGrava();
        }
        Fecha();
    }
    if (anterior) {
        Abre(*anterior);
    }
    return copia;
}

bool GerenteDeCasos::Apaga(std::int32_t codigo) {
    const EntradaCaso* entrada = mLista.Procura(codigo);
    if (entrada == nullptr) {
        return false;
    }
    if (mAberto == codigo) {
        Fecha();
    }
    if (QFileInfo::exists(entrada->Pasta) && mModelo.ApagarCaso(entrada->Pasta) != 1) {
        return false;
    }
    mLista.Remove(codigo);
    pGrava();
    return true;
}

void GerenteDeCasos::setSomenteLeitura(std::int32_t codigo, bool somenteLeitura) {
    mLista.setSomenteLeitura(codigo, somenteLeitura);
    if (mAberto == codigo) {
        mCaso->setSomenteLeitura(somenteLeitura);
    }
    pGrava();
}

void GerenteDeCasos::Executa() {
    if (mAberto) {
        mModelo.Executar(mNotificador);
    }
}

void GerenteDeCasos::pGrava() {
    if (!mLista.Grava()) {
        Servicos::dialogo().Mensagem(
            QStringLiteral("Não foi possível gravar a lista de casos em %1.").arg(mLista.Arquivo()),
            QStringLiteral("Erro"), Icone::Erro);
    }
}

}  // namespace halvo
