#include "platform/texto/ArquivoTexto.h"

#include "platform/runtime/ErroVB.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace texto {

using plataforma::ErroVB;

// Model files are small: the whole text is read at opening and the lines are served from memory.
struct ArquivoEntrada::Estado {
    QString texto;
    qsizetype posicao = 0;
};

ArquivoEntrada::ArquivoEntrada(const QString& caminho) : m(std::make_unique<Estado>()) {
    QFile arquivo(caminho);
    if (!arquivo.exists()) {
        throw ErroVB::padrao(plataforma::ErroArquivoNaoEncontrado);
    }
    if (!arquivo.open(QIODevice::ReadOnly)) {
        throw ErroVB::padrao(plataforma::ErroAcessoCaminho);
    }
    const QByteArray bytes = arquivo.readAll();
    if (arquivo.error() != QFileDevice::NoError) {
        throw ErroVB::padrao(plataforma::ErroAcessoCaminho);
    }
    m->texto = DeCp1252(bytes);
}

ArquivoEntrada::~ArquivoEntrada() = default;

bool ArquivoEntrada::Eof() const {
    return m->posicao >= m->texto.size();
}

QString ArquivoEntrada::LineInput() {
    if (Eof()) {
        throw ErroVB::padrao(plataforma::ErroFimDeArquivo);
    }
    const qsizetype inicio = m->posicao;
    const qsizetype cr = m->texto.indexOf(u'\r', inicio);
    if (cr < 0) {
        m->posicao = m->texto.size();
        return m->texto.mid(inicio);
    }
    m->posicao = cr + 1;
    if (m->posicao < m->texto.size() && m->texto[m->posicao] == u'\n') {
        ++m->posicao;
    }
    return m->texto.mid(inicio, cr - inicio);
}

// Nothing is held open; a closed file has simply nothing left to read.
void ArquivoEntrada::Close() {
    m->texto.clear();
    m->posicao = 0;
}

struct ArquivoSaida::Estado {
    QFile arquivo;
};

ArquivoSaida::ArquivoSaida(const QString& caminho) : m(std::make_unique<Estado>()) {
    if (!QFileInfo(caminho).absoluteDir().exists()) {
        throw ErroVB::padrao(plataforma::ErroCaminhoNaoEncontrado);
    }
    m->arquivo.setFileName(caminho);
    if (!m->arquivo.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        throw ErroVB::padrao(plataforma::ErroAcessoCaminho);
    }
}

// A failure here has nowhere to go; Close is the place to hear of it.
ArquivoSaida::~ArquivoSaida() = default;

void ArquivoSaida::Print(const QString& linha) {
    const QByteArray bytes = ParaCp1252(linha) + "\r\n";
    if (!m->arquivo.isOpen() || m->arquivo.write(bytes) != bytes.size()) {
        throw ErroVB::padrao(plataforma::ErroAcessoCaminho);
    }
}

void ArquivoSaida::Close() {
    if (!m->arquivo.isOpen()) {
        return;
    }
    const bool gravado = m->arquivo.flush();
    m->arquivo.close();
    if (!gravado || m->arquivo.error() != QFileDevice::NoError) {
        throw ErroVB::padrao(plataforma::ErroAcessoCaminho);
    }
}

}  // namespace texto
