#include "tests/doubles/DialogoRoteirizado.h"

namespace teste {

namespace {

template <typename T>
T proximo(std::deque<T>& fila, T padrao) {
    if (fila.empty()) {
        return padrao;
    }
    T valor = std::move(fila.front());
    fila.pop_front();
    return valor;
}

halvo::Resposta primeiroBotao(halvo::Botoes botoes) {
    return botoes == halvo::Botoes::SimNao || botoes == halvo::Botoes::SimNaoCancelar ? halvo::Resposta::Sim
                                                                                     : halvo::Resposta::Ok;
}

}  // namespace

halvo::Resposta DialogoRoteirizado::Mensagem(const QString& texto, const QString& titulo, halvo::Icone icone,
                                             halvo::Botoes botoes) {
    mMensagens.push_back({texto, titulo, icone, botoes});
    return proximo(mRespostas, primeiroBotao(botoes));
}

QString DialogoRoteirizado::SelecionaArquivo(const QString& filtro, const QString&, const QString&) {
    mFiltros.push_back(filtro);
    return proximo(mArquivos, QString());
}

QStringList DialogoRoteirizado::SelecionaArquivos() { return proximo(mListas, QStringList()); }

QString DialogoRoteirizado::SelecionaPasta(const QString&, const QString&) { return proximo(mPastas, QString()); }

void DialogoRoteirizado::limpa() {
    mMensagens.clear();
    mFiltros.clear();
    mPonteiros.clear();
}

}  // namespace teste
