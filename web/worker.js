// The worker: converts what the page sends, one request after the other, and says how far it is.
let loaded;

self.onmessage = async ({ data }) => {
  if (data.wasm) {
    loaded = loadConversions(data.wasm);
    await loaded;
    self.postMessage({ ready: true });
    return;
  }
  let index = -1;
  try {
    const convert = await loaded;
    const reader = new FileReaderSync();
    const readable = ({ name, file, isInFolder }) => {
      const bytes = () => {
        if (file.size > kMostBytes) {
          throw new RangeError("too large");
        }
        return new Uint8Array(reader.readAsArrayBuffer(file));
      };
      return { name, isInFolder, bytes };
    };
    const result = convert(
      {
        files: data.files.map(readable),
        further: data.further.map(readable),
        folders: data.folders,
        options: data.options,
      },
      (at) => {
        index = at;
        self.postMessage({ at });
      }
    );
    self.postMessage({ result }, [result.document.buffer]);
  } catch (error) {
    // The module is at its end: the page starts another worker, and leaves the file out.
    const isUnreadable = typeof DOMException !== "undefined" && error instanceof DOMException;
    self.postMessage({ failed: index, reason: isUnreadable ? "unreadable" : "limit" });
  }
};
