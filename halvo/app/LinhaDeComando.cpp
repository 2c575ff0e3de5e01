#include "halvo/app/LinhaDeComando.h"

#include "halvo/app/CasoPasta.h"
#include "halvo/app/Grupos.h"
#include "halvo/app/Modelos.h"
#include "halvo/sdk/NotificadorRegistro.h"
#include "halvo/sdk/IModelo.h"
#include "platform/runtime/ErroVB.h"

#include <algorithm>

namespace halvo {

LinhaDeComando::LinhaDeComando(const Modelos& modelos, QTextStream& saida, QTextStream& erro)
    : mModelos(modelos), mSaida(saida), mErro(erro) {
    mComandos[QStringLiteral("info")] = {QStringLiteral("info"),
                                         QStringLiteral("mostra o modelo, suas versões e suas telas"), 0,
                                         [this](const QStringList&) { return pInfo(); }};
    mComandos[QStringLiteral("criar")] = {QStringLiteral("criar PASTA"), QStringLiteral("cria um caso novo na pasta"),
                                          1, [this](const QStringList& a) { return pCriar(a[0]); }};
    mComandos[QStringLiteral("abrir")] = {
        QStringLiteral("abrir PASTA"), QStringLiteral("abre o caso, atualizando seu banco de dados, e o fecha"), 1,
        [this](const QStringList& a) { return pAbrir(a[0]); }};
    mComandos[QStringLiteral("copiar")] = {QStringLiteral("copiar ORIGEM DESTINO"),
                                           QStringLiteral("copia os arquivos do caso para outra pasta"), 2,
                                           [this](const QStringList& a) { return pCopiar(a[0], a[1]); }};
    mComandos[QStringLiteral("apagar")] = {QStringLiteral("apagar PASTA"),
                                           QStringLiteral("apaga a pasta do caso com tudo o que ela contém"), 1,
                                           [this](const QStringList& a) { return pApagar(a[0]); }};
    mComandos[QStringLiteral("executar")] = {
        QStringLiteral("executar PASTA"),
        QStringLiteral("executa o caso como o Halvo o executa, sem tela, e mostra o registro"), 1,
        [this](const QStringList& a) { return pExecutar(a[0]); }};
}

int LinhaDeComando::Executa(const QStringList& argumentos) {
    if (argumentos.isEmpty() || argumentos[0] == QStringLiteral("--help") || argumentos[0] == QStringLiteral("-h") ||
        argumentos[0] == QStringLiteral("ajuda")) {
        pAjuda();
        return argumentos.isEmpty() ? 2 : 0;
    }
    const QStringList resto = argumentos.mid(1);
    const auto comando = mComandos.find(argumentos[0]);
    if (comando == mComandos.end()) {
        const int codigo = pComandoDoModelo(argumentos[0], resto);
        if (codigo < 0) {
            mErro << QStringLiteral("halvo: comando desconhecido: %1 (veja halvo --help)").arg(argumentos[0])
                  << Qt::endl;
            return 2;
        }
        return codigo;
    }
    const int esperados = comando->second.argumentos;
    if ((esperados >= 0 && resto.size() != esperados) || (esperados < 0 && resto.isEmpty())) {
        mErro << QStringLiteral("halvo: uso: halvo %1").arg(comando->second.uso) << Qt::endl;
        return 2;
    }
    try {
        return comando->second.executa(resto);
    } catch (const plataforma::ErroVB& e) {
        return pFalha(QStringLiteral("erro %1: %2").arg(e.Number()).arg(e.Description()));
    }
}

int LinhaDeComando::pAjuda() {
    const auto linha = [this](const QString& uso, const QString& descricao) {
        mSaida << QStringLiteral("  %1 %2").arg(uso, -25).arg(descricao) << Qt::endl;
    };
    mSaida << QStringLiteral("uso: halvo [COMANDO [ARGUMENTOS]]") << Qt::endl << Qt::endl
           << QStringLiteral("Sem comando, abre a janela do Halvo.") << Qt::endl << Qt::endl
           << QStringLiteral("Comandos:") << Qt::endl;
    // The window is opened by the program itself, before a console command would run.
    linha(QStringLiteral("janela [PASTA]"), QStringLiteral("abre a janela, com o caso da pasta aberto"));
    for (const auto& [nome, comando] : mComandos) {
        linha(comando.uso, comando.descricao);
    }
    const auto modelo = mModelos.Cria();
    if (const auto* comandos = dynamic_cast<const ComandosDoModelo*>(modelo.get())) {
        mSaida << Qt::endl << QStringLiteral("Comandos do modelo %1:").arg(modelo->Modelo()) << Qt::endl;
        for (const auto& comando : comandos->Comandos()) {
            linha(QStringLiteral("%1 PASTA %2").arg(comando.nome, comando.uso).trimmed(), comando.descricao);
        }
    }
    mSaida << Qt::endl << QStringLiteral("O código de saída é 0 quando o comando termina bem.") << Qt::endl;
    return 0;
}

std::unique_ptr<IModelo> LinhaDeComando::pModelo() {
    auto modelo = mModelos.Cria();
    if (!modelo) {
        QString falhas = mModelos.Falhas().join(QStringLiteral("; "));
        throw plataforma::ErroVB(
            plataforma::ErroArquivoNaoEncontrado,
            QStringLiteral("nenhum modelo encontrado em %1%2")
                .arg(Modelos::PastaPadrao(), falhas.isEmpty() ? QString() : QStringLiteral(" (") + falhas + u')'));
    }
    return modelo;
}

int LinhaDeComando::pInfo() {
    const auto modelo = pModelo();
    mSaida << QStringLiteral("Modelo: %1").arg(modelo->Modelo()) << Qt::endl
           << QStringLiteral("Descrição: %1").arg(modelo->Descricao()) << Qt::endl
           << QStringLiteral("Versão do modelo: %1").arg(modelo->VersaoModelo()) << Qt::endl
           << QStringLiteral("Versão da interface: %1").arg(modelo->VersaoInterface()) << Qt::endl
           << QStringLiteral("Código do modelo: %1").arg(modelo->ModeloCodigo()) << Qt::endl
           << QStringLiteral("Telas:") << Qt::endl;
    for (int grupo = 1; grupo <= 4; ++grupo) {
        const auto telas = modelo->Telas(grupo);
        if (!telas) {
            continue;
        }
        mSaida << QStringLiteral("  %1").arg(NomeDoGrupo(grupo)) << Qt::endl;
        for (std::size_t item = 1; item < telas->size(); ++item) {
            const EntradaTela& tela = (*telas)[item];
            if (tela.Flag && item > 1) {
                mSaida << QStringLiteral("    --") << Qt::endl;
            }
            mSaida << QStringLiteral("    %1. %2").arg(item).arg(tela.Titulo) << Qt::endl;
        }
    }
    return 0;
}

int LinhaDeComando::pCriar(const QString& pasta) {
    if (pModelo()->CriarCaso(pasta) != 1) {
        return pFalha(QStringLiteral("não foi possível criar o caso em %1.").arg(pasta));
    }
    mSaida << QStringLiteral("Caso criado em %1.").arg(pasta) << Qt::endl;
    return 0;
}

int LinhaDeComando::pAbrir(const QString& pasta) {
    const auto modelo = pModelo();
    if (modelo->AbrirCaso(std::make_shared<CasoPasta>(pasta), std::make_shared<NotificadorRegistro>()) != 1) {
        return pFalha(QStringLiteral("não foi possível abrir o caso em %1.").arg(pasta));
    }
    modelo->FecharCaso();
    mSaida << QStringLiteral("Caso aberto e fechado: %1.").arg(pasta) << Qt::endl;
    return 0;
}

int LinhaDeComando::pCopiar(const QString& origem, const QString& destino) {
    const auto modelo = pModelo();
    if (modelo->AbrirCaso(std::make_shared<CasoPasta>(origem), std::make_shared<NotificadorRegistro>()) != 1) {
        return pFalha(QStringLiteral("não foi possível abrir o caso em %1.").arg(origem));
    }
    QString de = origem;
    QString para = destino;
    const bool copiou = modelo->CopiarCaso(de, para) == 1;
    modelo->FecharCaso();
    if (!copiou) {
        return pFalha(QStringLiteral("não foi possível copiar o caso de %1 para %2.").arg(origem, destino));
    }
    mSaida << QStringLiteral("Caso copiado de %1 para %2.").arg(de, para) << Qt::endl;
    return 0;
}

int LinhaDeComando::pApagar(const QString& pasta) {
    if (pModelo()->ApagarCaso(pasta) != 1) {
        return pFalha(QStringLiteral("não foi possível apagar o caso em %1.").arg(pasta));
    }
    mSaida << QStringLiteral("Caso apagado: %1.").arg(pasta) << Qt::endl;
    return 0;
}

// The host's road of a run: the model runs the whole case without a screen, and says how it went
// by its last event.
int LinhaDeComando::pExecutar(const QString& pasta) {
    const auto modelo = pModelo();
    if (auto* comandos = dynamic_cast<ComandosDoModelo*>(modelo.get())) {
        comandos->setSaidaDaExecucao(&mSaida);
    }
    return pNoCaso(*modelo, pasta, [&] {
        const auto eventos = std::make_shared<NotificadorRegistro>();
        modelo->Executar(eventos);
        const bool semErro = !eventos->Eventos().empty() && eventos->Eventos().back() == EventoExecucaoSemErro;
        return semErro ? 0 : 1;
    });
}

int LinhaDeComando::pComandoDoModelo(const QString& nome, const QStringList& argumentos) {
    const auto modelo = mModelos.Cria();
    auto* comandos = dynamic_cast<ComandosDoModelo*>(modelo.get());
    if (comandos == nullptr) {
        return -1;
    }
    const auto lista = comandos->Comandos();
    const auto comando = std::find_if(lista.begin(), lista.end(), [&](const auto& c) { return c.nome == nome; });
    if (comando == lista.end()) {
        return -1;
    }
    if (argumentos.isEmpty()) {
        mErro << QStringLiteral("halvo: uso: halvo %1 PASTA %2").arg(nome, comando->uso).trimmed() << Qt::endl;
        return 2;
    }
    try {
        return pNoCaso(*modelo, argumentos[0],
                       [&] { return comandos->Executa(nome, argumentos.mid(1), mSaida, mErro); });
    } catch (const plataforma::ErroVB& e) {
        return pFalha(QStringLiteral("erro %1: %2").arg(e.Number()).arg(e.Description()));
    }
}

int LinhaDeComando::pNoCaso(IModelo& modelo, const QString& pasta, const std::function<int()>& acao) {
    if (modelo.AbrirCaso(std::make_shared<CasoPasta>(pasta), std::make_shared<NotificadorRegistro>()) != 1) {
        return pFalha(QStringLiteral("não foi possível abrir o caso em %1.").arg(pasta));
    }
    // Closed however the command ends.
    const std::unique_ptr<IModelo, void (*)(IModelo*)> fecha(&modelo, [](IModelo* m) { m->FecharCaso(); });
    return acao();
}

int LinhaDeComando::pFalha(const QString& mensagem) {
    mErro << QStringLiteral("halvo: ") << mensagem << Qt::endl;
    return 1;
}

}  // namespace halvo
