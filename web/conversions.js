// The conversions as a function: files in, a document and what there is to say out.

// Compiles the module. The result converts files, of which each is { name, isInFolder, bytes() }: names are paths with "/".
// What is thrown ends the module, which is not to be called again.
async function loadConversions(wasm) {
  let findFile = () => null;
  let exports;
  const memory = () => new Uint8Array(exports.memory.buffer);
  const decoder = new TextDecoder();

  // A copy in the module's memory, with a zero behind it.
  function give(bytes) {
    const place = exports.allocate(bytes.length + 1);
    if (place === 0) {
      throw new RangeError("out of memory");
    }
    memory().set(bytes, place);
    memory()[place + bytes.length] = 0;
    return place;
  }

  function withText(text, use) {
    const place = give(new TextEncoder().encode(text));
    const result = use(place);
    exports.release(place);
    return result;
  }

  function take(size) {
    const place = exports.text() >>> 0;
    return memory().slice(place, place + (size >>> 0));
  }

  function textAt(place) {
    const bytes = memory();
    return decoder.decode(bytes.slice(place, bytes.indexOf(0, place)));
  }

  function find(name, answer) {
    const bytes = findFile(textAt(name >>> 0));
    if (bytes) {
      const place = give(bytes);
      exports.answer(answer, place, bytes.length);
      exports.release(place);
    }
  }

  const compiled = await WebAssembly.compile(wasm);
  const imports = { page: { find } };
  // There is no system: each of its calls is one that is not there.
  const kNotSupported = 58;
  for (const { module, name } of WebAssembly.Module.imports(compiled)) {
    imports[module] ??= {};
    imports[module][name] ??= () => kNotSupported;
  }
  exports = (await WebAssembly.instantiate(compiled, imports)).exports;
  exports._initialize();

  // `options` as docs/schemas/options.schema.json says; `further` are the files that others may ask for;
  // `atFile` is called before each file.
  return function convert({ files, folders = [], further = files, options = {} }, atFile = () => {}) {
    const problem = decoder.decode(take(withText(JSON.stringify(options), exports.begin)));
    if (problem) {
      return { problem, symbols: 0, others: 0, document: new Uint8Array(), findings: [] };
    }
    for (const folder of folders) {
      withText(folder, exports.add_folder);
    }
    let others = 0;
    files.forEach((file, index) => {
      atFile(index);
      findFile = (name) => findShapeFile(further, file.name, name);
      const bytes = file.bytes();
      const place = give(bytes);
      withText(file.name, (name) => {
        if (file.isInFolder && !exports.is_known(name, place, bytes.length)) {
          others += 1;
        } else {
          exports.add_file(name, place, bytes.length);
        }
      });
      exports.release(place);
    });
    const document = take(exports.write());
    const { findings } = JSON.parse(decoder.decode(take(exports.diagnostics())));
    return { problem: "", symbols: exports.symbols(), others, document, findings };
  };
}

// Larger files leave no room for what is made of them.
const kMostBytes = 256 << 20;

// The file that another calls so: in its folder first, then anywhere, with or without ".shx", in any case.
// The folders of the name are those of another machine.
function findShapeFile(files, from, name) {
  const wanted = name.split(/[\/\\]/).pop().toLowerCase();
  const folderOf = (path) => path.slice(0, path.lastIndexOf("/") + 1);
  const baseOf = (path) => path.slice(path.lastIndexOf("/") + 1).toLowerCase();
  for (const candidate of [wanted, wanted + ".shx"]) {
    const found = files.filter((file) => baseOf(file.name) === candidate);
    found.sort((a, b) => (folderOf(b.name) === folderOf(from)) - (folderOf(a.name) === folderOf(from)));
    if (found.length > 0) {
      return found[0].bytes();
    }
  }
  return null;
}
