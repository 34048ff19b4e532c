// Made from documents.schema.json by make_types.py.

/**
 * Documents of the media-IO model, as the Qiv writers write whatever their readers have read, and the updates between
 * two such states: channels, nodes, and the parts of a channel that stand on their own. "_type" tells the kind and is
 * written first, but readers do not rely on any order of members. null is never written. A text ends before its first
 * NUL, as writers pass texts null-terminated; a metadata name that has its last dot behind one is read, but not written
 * as told here. Programs can build entities that no document gives and that are written otherwise, such as those with a
 * server identifier that is no positive multiple of 10, a metadata profile whose namespace begins with qiv.peloperator,
 * a number that is no enumerator, a relative boundary that counts from "Absolute", a year after 2261 or a frame below
 * zero. Documents from elsewhere may leave out every member but "_type", the "id" of a node, and what the descriptions
 * of references, time points, durations and boundaries ask for; a channel then keeps the value that it has. Where no
 * description says otherwise, readers skip members that they do not know and values that do not fit, so that a channel
 * keeps what it has then, too; but another "_type" than the one that is required fails the whole document, as does an
 * object without members in the place of a channel, a node, an asset, a sequence, a speed, a boundary, a sequence
 * output or a time point.
 */
export type Document = MediaInput | MediaOutput | Node | SequenceOutput | Speed | BoundaryAbsolute | BoundaryRelative;

/**
 * A signed 64-bit count of nanoseconds in decimal digits. It stands in a string because many JSON libraries keep only
 * 53 bits of a number.
 * @pattern ^(0|-?[1-9][0-9]{0,18})(?!\n)$
 */
export type Nanoseconds = string;

/**
 * A duration. Where it may be left out, that means zero. Readers skip one that lacks "_type" or "value", or has another
 * "_type".
 */
export interface Duration {
  _type: "Duration";
  value: Nanoseconds;
}

/**
 * A point in time, counted in nanoseconds. Where it may be left out, that means that there is none. Readers do without
 * "_type", and take an integer of 64 bits as "value", too; a "value" that means no such integer, or none at all, fails
 * the document.
 */
export interface TimePoint {
  _type: "TimePoint";
  value: Nanoseconds;
}

/**
 * A time code: date, hour, minute, second, frame, and after "@" the whole frames per second. The separator before the
 * frame tells how frames are counted: ":" without and ";" with dropped frame numbers, the latter only at 30 and 60. A
 * time code without date has the date -1-0-1-0-1, a placeholder that readers do not accept: they skip the member. So
 * they do with frame numbers of three digits, which there are above 100 frames per second. Readers take the form
 * without date and "T", as 10:00:00:00@25, which only updates have. Where a time code may be left out, that means
 * 1900-01-01T00:00:00:00@50.
 * @pattern ^(((19[0-9]{2}|2[01][0-9]{2}|22[0-5][0-9]|226[01])-(0[1-9]|1[0-2])-(0[1-9]|[12][0-9]|3[01])|-1-0-1-0-1)T)?([01][0-9]|2[0-3]):[0-5][0-9]:[0-5][0-9](:[0-9]{2,}@[1-9][0-9]{0,9}|;[0-5][0-9]@(30|60))(?!\n)$
 * @example 2016-03-21T14:05:09:17@25
 * @example 2016-03-21T14:05:09;17@30
 * @example -1-0-1-0-1T10:00:00:00@25
 * @example 10:00:00:00@25
 */
export type TimeCode = string;

/**
 * Which of the two time codes is the primary one: the time of day or the user's. Left out for NotSet, as which another
 * text is read.
 */
export type TimecodePrimary = "Tod" | "User" | "NotSet";

/** A recording or a part of one. */
export interface MediaAsset {
  _type: "MediaAsset";
  /** Identity of the asset. */
  id: string;
  /** Display name. Left out when empty. */
  name?: string;
  inPoint?: TimePoint;
  outPoint?: TimePoint;
}

/**
 * A reference to a media asset. With "mediaAsset" it holds the asset itself, whose "id" is then the one that counts. A
 * reference fails the document unless it has an object as "mediaAsset", or else an "id" that is no object, array or
 * null, with nothing beside it but a "_type" that is not null.
 */
export interface MediaAssetRef {
  _type: "MediaAssetRef";
  /** Identity of the asset; empty when there is none. */
  id: string;
  mediaAsset?: MediaAsset;
}

/** An edited sequence. */
export interface Sequence {
  _type: "Sequence";
  /** Identity of the sequence. */
  id: string;
  /** Display name. Left out when empty. */
  name?: string;
}

/** A reference to a sequence, as MediaAssetRef is one to an asset. */
export interface SequenceRef {
  _type: "SequenceRef";
  /** Identity of the sequence. */
  id: string;
  sequence?: Sequence;
}

/**
 * Metadata profiles in flat form. Members are named namespace.key: what stands before the last dot names a profile,
 * what stands behind it a key in it. Readers keep what they have and the document has not. Namespaces that begin with
 * qiv.peloperator belong to the operator profile, of which readers take the two members below and skip all others.
 */
export interface Metadata {
  /**
   * Serial number of the server on which the operator works. Left out when there is none.
   * @minimum 10
   * @maximum 2147483647
   * @multipleOf 10
   */
  "qiv.peloperator.serverId"?: number;
  /**
   * Index of the operator. A negative one means that there is none; only updates have it, in which it clears another
   * one.
   * @minimum -2147483648
   * @maximum 2147483647
   */
  "qiv.peloperator.index"?: number;
  [name: `${string}.${string}`]: string | number | undefined;
}

/**
 * A play speed as a fraction: 1/1 is normal speed, -1/2 half speed backwards. Readers leave a number alone that the
 * document does not have; in a channel it is then 0.
 */
export interface Speed {
  _type: "Speed";
  /**
   * @minimum -2147483648
   * @maximum 2147483647
   */
  numerator: number;
  /**
   * 0 for an undefined speed. A denominator of 2^31 or more is written as the negative number with the same 32 bits.
   * @minimum -2147483648
   * @maximum 2147483647
   */
  denominator: number;
}

/**
 * An in or out point at a point in time. In a channel it is left out without "timepoint", which fails the document when
 * it is neither null nor an object with members.
 */
export interface BoundaryAbsolute {
  _type: "BoundaryAbsolute";
  timepoint?: TimePoint;
}

/** An in or out point relative to another one. Readers take what is left out as the first origin and as 0. */
export interface BoundaryRelative {
  _type: "BoundaryRelative";
  /**
   * The point from which the offset counts. "Absolute" ends the process that reads it; any other text is read as the
   * first origin.
   */
  origin: "RelativeToCorrespondingMediaBoundary" | "RelativeToOppositeMediaBoundary" | "RelativeToOppositeLoadBoundary";
  /**
   * In the unit that the server has agreed on.
   * @minimum -2147483648
   * @maximum 2147483647
   */
  offset: number;
}

/** An in or out point. One without "_type" fails the document. */
export type Boundary = BoundaryAbsolute | BoundaryRelative;

/** A block of a sequence and the media asset that it plays. */
export interface AssetBlock {
  _type: "AssetBlockOnAir";
  /** Identity of the block within the sequence. */
  id: string;
  mediaAsset: MediaAssetRef;
}

/** The state of a player that plays a sequence. */
export interface SequenceOutput {
  _type: "SequenceOutput";
  /** Left out when there is none. */
  sequenceOnAir?: SequenceRef;
  assetBlockOnAir: AssetBlock;
  /** The block that follows. Left out when there is none; readers then keep the one they have. */
  nextAssetBlockOnAir?: AssetBlock;
  /** True while the sequence is being edited. */
  editMode: boolean;
}

/** A recorder channel. */
export interface MediaInput {
  _type: "MediaInput";
  /** Identity of the channel. Left out when empty. */
  id?: string;
  /** Display name. Left out when empty. */
  name?: string;
  /** The media asset on air. Left out when there is none. */
  mediaAssetOnAir?: MediaAssetRef;
  /** Left out when there are no profiles; an object without members when no profile has a member to write. */
  metadata?: Metadata;
  /** Always written. Another text is read as Idle. */
  recordingStatus?: "Idle" | "Pause" | "Recording";
  /** The last recorded time point. What is neither null nor an object with members fails the document. */
  lastTimePoint?: TimePoint;
  /** The last recorded time-of-day time code. */
  lastTodTimecode?: TimeCode;
  /** The last recorded user time code. */
  lastUserTimecode?: TimeCode;
  primaryTimecodeType?: TimecodePrimary;
  /** The recording time still available. Left out when zero; readers apply it before "totalCapacity". */
  remainingCapacity?: Duration;
  /** The recording time of the channel. Left out when zero. */
  totalCapacity?: Duration;
}

/** A player channel. */
export interface MediaOutput {
  _type: "MediaOutput";
  /** Identity of the channel. Left out when empty. */
  id?: string;
  /** Display name. Left out when empty. */
  name?: string;
  /** The media asset on air. Left out when there is none. */
  mediaAssetOnAir?: MediaAssetRef;
  /** Left out when there are no profiles; an object without members when no profile has a member to write. */
  metadata?: Metadata;
  /** Always written. Another text is read as Idle. */
  playingStatus?: "Idle" | "Live" | "Empty" | "Cueing" | "Ready" | "Playing";
  /** Left out when undefined. */
  speedOnAir?: Speed;
  /** Left out for Unknown, as which another text is read. */
  globalLoopMode?: "None" | "Loop" | "Bounce" | "Unknown";
  /** The time left to play. Left out when zero. */
  remainingTime?: Duration;
  /**
   * The time point on air. A text as "value" that does not begin with a number, or with one that does not fit 64 bits,
   * ends the process that reads it; what follows the number is passed over. Anything else that does not fit is skipped,
   * also an object without "_type" or "value" and a number beyond 64 bits.
   */
  currentTimePointOnAir?: TimePoint;
  /** The time-of-day time code on air. */
  todTimecodeOnAir?: TimeCode;
  /** The user time code on air. */
  userTimecodeOnAir?: TimeCode;
  primaryTimecodeType?: TimecodePrimary;
  /** Left out while no sequence is played. */
  sequence?: SequenceOutput;
  /** Left out when there is no in point. */
  inBoundary?: Boundary;
  /** Left out when there is no out point. */
  outBoundary?: Boundary;
}

/** A server machine. Reading a node replaces it as a whole. */
export interface Node {
  _type: "Node";
  /** Identity of the node. */
  id: string;
  /**
   * Left out when unknown, which is -1.
   * @minimum -2147483648
   * @maximum 2147483647
   */
  serialNumber?: number;
  /** Network host name. This and the texts below are left out when empty. */
  hostName?: string;
  /** Main IP address. */
  ipAddress?: string;
  /** IP addresses of the gigabit Ethernet interfaces, in their order. Left out when there are none. */
  gbeIpAddresses?: [string, ...string[]];
  /** Chassis type, free text. */
  chassis?: string;
  /** Hardware revision, free text. */
  hardwareRevision?: string;
  /** Version of the server software. */
  tarvonelVersion?: string;
}
